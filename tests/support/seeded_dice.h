#pragma once

#include <cstdint>
#include <random>

#include "records/dice.h"

namespace frostmark::test {

// The same rolls for the same seed, in every run and on every machine.
class SeededDice : public Dice {
 public:
  explicit SeededDice(std::uint64_t seed = 1) : generator_(seed) {}

  void Reseed(std::uint64_t seed) { generator_.seed(seed); }

  int Roll(int n) override {
    if (n < 1) return n + 1;
    // Not a distribution of the standard library, whose results differ from one to the next.
    return static_cast<int>(generator_() % static_cast<std::uint64_t>(n)) + 1;
  }

 private:
  std::mt19937_64 generator_;
};

}  // namespace frostmark::test
