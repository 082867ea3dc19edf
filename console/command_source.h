#pragma once

#include <chrono>
#include <string>

namespace frostmark {

// Where command lines come from: an open file, a pipe or a terminal. It reads ahead, so that a long
// script costs few system calls.
class CommandSource {
 public:
  using Time = std::chrono::microseconds;

  // Reads from DESCRIPTOR, which stays the caller's.
  explicit CommandSource(int descriptor) : descriptor_(descriptor) {}

  // Takes the next line, without its end, waiting for it if need be. False at the end of the input.
  bool ReadLine(std::string& line);
  // Whether ReadLine would answer from what is read already.
  bool HasLine() const;
  // Waits until there is something to read, but no longer than AT_MOST.
  bool WaitForInput(Time at_most) const;

 private:
  bool Fill();

  int descriptor_;
  std::string ahead_;
  std::size_t at_ = 0;
  bool ended_ = false;
};

}  // namespace frostmark
