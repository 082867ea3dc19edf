#pragma once

#include <cstdint>
#include <random>
#include <utility>
#include <vector>

#include "records/dice.h"
#include "tests/reference/roll_trace.h"

namespace frostmark::replay {

// Dice that can be thrown again: they start from a seed and keep every roll for the reference.
class TracingDice : public Dice {
 public:
  explicit TracingDice(std::uint64_t seed) : generator_(seed) {}

  int Roll(int n) override {
    const int result = n < 1 ? 1 : static_cast<int>(generator_() % static_cast<unsigned>(n)) + 1;
    rolls_.push_back({n, result});
    return result;
  }

  // The rolls since the last call.
  std::vector<reference::TracedRoll> Take() { return std::exchange(rolls_, {}); }

 private:
  std::mt19937_64 generator_;
  std::vector<reference::TracedRoll> rolls_;
};

}  // namespace frostmark::replay
