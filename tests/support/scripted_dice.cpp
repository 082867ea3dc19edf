#include "tests/support/scripted_dice.h"

#include <algorithm>
#include <stdexcept>
#include <string>

namespace frostmark::test {

void ScriptedDice::ThenSeeded(std::uint64_t seed) {
  always_ = 0;
  seeded_.Reseed(seed);
}

std::vector<int> ScriptedDice::Asked() const {
  std::vector<int> asked;
  asked.reserve(rolls_.size());
  for (const RollPair& roll : rolls_) asked.push_back(roll.n);
  return asked;
}

int ScriptedDice::Roll(int n) {
  const int result = Next(n);
  if (keep_) rolls_.push_back({n, result});
  return result;
}

int ScriptedDice::Next(int n) {
  if (!given_.empty()) {
    const int result = given_.front();
    given_.pop_front();
    if (result < 1 || result > n) {
      throw std::logic_error("a roll of " + std::to_string(result) + " is given where one up to " +
                             std::to_string(n) + " is asked for");
    }
    return result;
  }
  if (always_ > 0 && n > 0) return std::min(always_, n);
  return seeded_.Roll(n);
}

}  // namespace frostmark::test
