#include "records/item_reader.h"

#include <algorithm>

namespace frostmark {

std::string_view ItemReader::Next() {
  const std::string_view text = text_;
  SkipBlanks();
  if (at_ < text.size() && text[at_] == '"') {
    const std::size_t start = at_ + 1;
    const std::size_t end = std::min(text.find('"', start), text.size());
    at_ = std::min(end + 1, text.size());
    SkipBlanks();
    SkipDelimiter();
    return text.substr(start, end - start);
  }
  const std::size_t start = at_;
  at_ = std::min(text.find_first_of(",\r\n", start), text.size());
  const std::string_view item = text.substr(start, at_ - start);
  SkipDelimiter();
  return item;
}

void ItemReader::SkipBlanks() {
  while (at_ < text_.size() && text_[at_] == ' ') ++at_;
}

void ItemReader::SkipDelimiter() {
  if (at_ >= text_.size()) return;
  const char delimiter = text_[at_];
  if (delimiter != ',' && delimiter != '\r' && delimiter != '\n') return;
  ++at_;
  if (delimiter == '\r' && at_ < text_.size() && text_[at_] == '\n') ++at_;
}

}  // namespace frostmark
