#include "tests/reference/roll_trace.h"

namespace frostmark::reference {

namespace {

constexpr std::size_t kRemembered = 6;

}  // namespace

int RollTrace::Next(int n, const std::string& asked_by) {
  std::string before;
  for (const std::string& asker : askers_) before += "\n    before it: " + asker;
  const std::string place = "roll " + std::to_string(used_) + ": the rules roll up to " +
                            std::to_string(n) + " (" + asked_by + "), ";
  if (used_ == rolls_.size()) throw Divergence{place + "the game does not roll any more" + before};
  const TracedRoll roll = rolls_[used_];
  if (roll.n != n) {
    throw Divergence{place + "the game rolled up to " + std::to_string(roll.n) + before};
  }
  if (roll.result < 1 || roll.result > n) {
    throw Divergence{place + "the game's result was " + std::to_string(roll.result) + before};
  }
  ++used_;
  askers_.push_back(asked_by + ": " + std::to_string(roll.result) + " of " + std::to_string(n));
  if (askers_.size() > kRemembered) askers_.erase(askers_.begin());
  return roll.result;
}

}  // namespace frostmark::reference
