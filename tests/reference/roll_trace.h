#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace frostmark::reference {

// One roll as the game made it: a number from 1 to N.
struct TracedRoll {
  int n;
  int result;
};

// The game asked for another roll than the rules do, or for fewer.
struct Divergence {
  std::string what;
};

// The rolls that the game made, in order. The rules ask for them one by one and each time say what
// the roll is to be up to and who wants it, so that two rolls in a wrong order show at once.
class RollTrace {
 public:
  void Append(const TracedRoll& roll) { rolls_.push_back(roll); }

  // The next result. Throws Divergence when the game rolled up to another number than N, or not at
  // all.
  int Next(int n, const std::string& asked_by);

  std::size_t Used() const { return used_; }
  std::size_t Left() const { return rolls_.size() - used_; }

 private:
  std::vector<TracedRoll> rolls_;
  std::vector<std::string> askers_;  // of the last few rolls, for the message
  std::size_t used_ = 0;
};

}  // namespace frostmark::reference
