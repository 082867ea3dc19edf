#pragma once

#include <chrono>
#include <string>

namespace frostmark {

// Where command lines come from.
class CommandSource {
 public:
  using Time = std::chrono::microseconds;

  CommandSource() = default;
  CommandSource(const CommandSource&) = delete;
  CommandSource& operator=(const CommandSource&) = delete;
  virtual ~CommandSource() = default;

  // Takes the next line, without its end, waiting for it if need be. False at the end of the input.
  virtual bool ReadLine(std::string& line) = 0;
  // Whether ReadLine would answer without waiting.
  virtual bool HasLine() const = 0;
  // Waits until ReadLine would answer, or may, but no longer than AT_MOST.
  virtual bool WaitForInput(Time at_most) = 0;
  // Shows PROMPT in front of the lines that follow, if it is up to the source; false if it is not.
  virtual bool ShowPrompt(const std::string& /*prompt*/) { return false; }
};

// Waits until there is something to read from DESCRIPTOR, but no longer than AT_MOST. False when
// there is nothing, or when a signal came first.
bool WaitToRead(int descriptor, CommandSource::Time at_most);

// An open file, a pipe, or a terminal as it comes. It reads ahead, so that a long script costs few
// system calls.
class FileSource : public CommandSource {
 public:
  // Reads from DESCRIPTOR, which stays the caller's.
  explicit FileSource(int descriptor) : descriptor_(descriptor) {}

  bool ReadLine(std::string& line) override;
  bool HasLine() const override;
  bool WaitForInput(Time at_most) override;

 private:
  bool Fill();

  int descriptor_;
  std::string ahead_;
  std::size_t at_ = 0;
  bool ended_ = false;
};

}  // namespace frostmark
