#pragma once

#include <cstdint>
#include <deque>
#include <initializer_list>
#include <utility>
#include <vector>

#include "tests/support/seeded_dice.h"

namespace frostmark::test {

// One roll as it was asked for and answered.
struct RollPair {
  int n;
  int result;
  bool operator==(const RollPair&) const = default;
};

// Dice that play the given rolls first and then go on by their seed. All rolls are kept, so that a
// test can compare their order with the rules.
class ScriptedDice : public Dice {
 public:
  explicit ScriptedDice(std::uint64_t seed = 1) : seeded_(seed) {}

  // Queues the next results. A result that the roll asked for cannot have throws std::logic_error,
  // which fails the test.
  void Give(std::initializer_list<int> results) { given_.insert(given_.end(), results); }
  void Give(int count, int result) { given_.insert(given_.end(), count, result); }
  // From now on each roll that is not queued gives RESULT, or N where that is less.
  void ThenAlways(int result) { always_ = result; }
  void ThenSeeded(std::uint64_t seed);

  std::size_t LeftOver() const { return given_.size(); }
  const std::vector<RollPair>& Rolls() const { return rolls_; }
  // The rolls since the last Take or Forget.
  std::vector<RollPair> Take() { return std::exchange(rolls_, {}); }
  // The N of each roll so far.
  std::vector<int> Asked() const;
  void Forget() { rolls_.clear(); }
  // Off for long runs, whose rolls would fill the memory.
  void KeepRolls(bool keep) { keep_ = keep; }

  int Roll(int n) override;

 private:
  int Next(int n);

  std::deque<int> given_;
  std::vector<RollPair> rolls_;
  SeededDice seeded_;
  int always_ = 0;
  bool keep_ = true;
};

}  // namespace frostmark::test
