#pragma once

#include <sys/types.h>

#include <chrono>
#include <string>
#include <vector>

namespace frostmark::test {

// A run of the program that plays by itself.
class Victim {
 public:
  // ARGUMENTS: the folder, the mode and perhaps a number of years.
  explicit Victim(const std::vector<std::string>& arguments);
  Victim(const Victim&) = delete;
  Victim& operator=(const Victim&) = delete;
  ~Victim();

  // Waits until it has resumed its franchise. False when it ended before.
  bool BecomesReady();

  // Kills it after DELAY. False when it ended by itself before.
  bool KillAfter(std::chrono::microseconds delay);

  // Waits for its own end and tells whether that was a good one.
  bool EndsWell();

  // All whole lines that it has said. To be called after its end.
  const std::vector<std::string>& Said() const { return said_; }

 private:
  bool ReadLine();
  int WaitForEnd();

  pid_t process_ = -1;
  int output_ = -1;
  std::string unread_;
  std::vector<std::string> said_;
};

}  // namespace frostmark::test
