#include "console/words.h"

#include <charconv>

#include "console/refusal.h"

namespace frostmark {
namespace {

bool IsBlank(char c) { return c == ' ' || c == '\t'; }

}  // namespace

void Words::SkipBlanks() {
  while (at_ < line_.size() && IsBlank(line_[at_])) ++at_;
}

std::string Words::Next(const char* what) {
  SkipBlanks();
  if (at_ == line_.size()) throw Refusal{std::string(what) + " is missing"};
  if (line_[at_] == '"') return Quoted();
  const std::size_t start = at_;
  while (at_ < line_.size() && !IsBlank(line_[at_])) ++at_;
  return std::string(line_.substr(start, at_ - start));
}

std::string Words::Quoted() {
  std::string word;
  for (++at_; at_ < line_.size(); ++at_) {
    char c = line_[at_];
    if (c == '"') {
      ++at_;
      return word;
    }
    if (c == '\\' && at_ + 1 < line_.size()) {
      c = line_[++at_];
      if (c == 'n') {
        c = '\n';
      } else if (c != '"' && c != '\\') {
        word += '\\';
      }
    }
    word += c;
  }
  throw Refusal{"a closing quote is missing"};
}

int Words::NextNumber(const char* what) { return WholeNumber(Next(what), what); }

std::string_view Words::Rest() {
  if (at_ < line_.size() && IsBlank(line_[at_])) ++at_;
  const std::string_view rest = line_.substr(at_);
  at_ = line_.size();
  return rest;
}

bool Words::AtEnd() {
  SkipBlanks();
  return at_ == line_.size();
}

void Words::ExpectEnd() {
  if (!AtEnd()) throw Refusal{"too many words: " + std::string(line_.substr(at_))};
}

int WholeNumber(std::string_view text, const char* what) {
  int number = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  if (error != std::errc() || end != text.data() + text.size()) {
    throw Refusal{std::string(what) + " is no whole number: " + std::string(text)};
  }
  return number;
}

}  // namespace frostmark
