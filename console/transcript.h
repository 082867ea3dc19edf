#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <utility>

namespace frostmark {

// Everything that the console prints: one fact a line, gathered in memory and written when the
// console has to wait for somebody or ends. It counts the refusals, which make the exit code.
class Transcript {
 public:
  Transcript() = default;
  Transcript(const Transcript&) = delete;
  Transcript& operator=(const Transcript&) = delete;
  ~Transcript() { Flush(); }

  // From now on a person reads along at a terminal: nothing but what can be read is printed, broken
  // between words, and BEFORE_LINE is called first.
  void PrintForPerson(std::function<void()> before_line) {
    for_person_ = true;
    before_line_ = std::move(before_line);
  }

  // Prints TEXT as one line: a line break in it comes out as \n.
  void Line(std::string_view text);
  // Prints "refused: REASON" and counts it.
  void Refuse(std::string_view reason);
  // Prints TEXT as it stands: a prompt that somebody answers on the same line, or what moves the
  // cursor of a terminal.
  void Prompt(std::string_view text);
  void Flush();

  // False when what is printed can no longer be written: nobody reads it, or there is no room.
  bool IsHeard() const { return is_heard_; }
  bool HasRefused() const { return has_refused_; }

 private:
  void PrintLine(std::string_view text);

  std::string waiting_;
  bool for_person_ = false;
  std::function<void()> before_line_;
  bool has_refused_ = false;
  bool is_heard_ = true;
};

}  // namespace frostmark
