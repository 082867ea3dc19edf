#pragma once

#include <string>
#include <string_view>

namespace frostmark {

// A command line on its way into words. Words are separated by blanks; one with blanks in it stands
// in double quotes, in which \" and \\ and \n are known. A text at the end of a line is taken as it
// stands.
class Words {
 public:
  // LINE outlives this.
  explicit Words(std::string_view line) : line_(line) {}

  // The next word; throws Refusal, saying that WHAT is missing, when there is none.
  std::string Next(const char* what);
  // The next word as a whole number.
  int NextNumber(const char* what);
  // Everything after the one blank that follows the last word, blanks and quotes included.
  std::string_view Rest();
  bool AtEnd();
  // The first character of the next word; only where AtEnd is false.
  char Peek() const { return line_[at_]; }
  // Throws Refusal when there are more words.
  void ExpectEnd();

 private:
  void SkipBlanks();
  std::string Quoted();

  std::string_view line_;
  std::size_t at_ = 0;
};

// TEXT as a whole number without anything around it; throws Refusal, naming WHAT, when it is none.
int WholeNumber(std::string_view text, const char* what);

}  // namespace frostmark
