#pragma once

#include <string>
#include <string_view>

namespace frostmark {

// Takes a file's text apart into items. An item ends at a comma or a line end (CR LF, CR or LF);
// blanks at its start are skipped; one that starts with a double quote runs to the next double
// quote, and what is between the two may hold commas and line ends. Any bytes are taken.
class ItemReader {
 public:
  explicit ItemReader(std::string text) : text_(std::move(text)) {}

  bool AtEnd() const { return at_ >= text_.size(); }

  // The next item. Not to be called at the end. The view is good as long as the reader.
  std::string_view Next();

 private:
  void SkipBlanks();
  void SkipDelimiter();

  std::string text_;
  std::size_t at_ = 0;
};

}  // namespace frostmark
