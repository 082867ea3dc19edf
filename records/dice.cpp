#include "records/dice.h"

#include <chrono>
#include <cmath>

namespace frostmark {

int ClockDice::Roll(int n) {
  const auto now = std::chrono::steady_clock::now().time_since_epoch().count();
  state_ += static_cast<std::uint64_t>(now) ^ 0x9E3779B97F4A7C15U;
  std::uint64_t mix = state_;
  mix = (mix ^ (mix >> 30U)) * 0xBF58476D1CE4E5B9U;
  mix = (mix ^ (mix >> 27U)) * 0x94D049BB133111EBU;
  mix ^= mix >> 31U;
  // 24 bits fill a single-precision fraction exactly: 0 <= fraction < 1.
  const double fraction = static_cast<double>(mix >> 40U) * 0x1p-24;
  return static_cast<int>(std::floor(fraction * n)) + 1;
}

}  // namespace frostmark
