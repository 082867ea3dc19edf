#pragma once

#include <cstdint>

namespace frostmark {

// The only source of chance. Every random decision of the game is one Roll.
class Dice {
 public:
  Dice() = default;
  Dice(const Dice&) = delete;
  Dice& operator=(const Dice&) = delete;
  virtual ~Dice() = default;

  // A whole number from 1 to N, each equally likely. For N below 1 the result is 1 or less, as the
  // floor of a fraction of N plus 1 has it.
  virtual int Roll(int n) = 0;
};

// Re-seeds from the system clock at every roll, so that no game can be replayed. The clock is mixed
// into a running state, so that rolls within one tick of the clock differ too.
class ClockDice : public Dice {
 public:
  int Roll(int n) override;

 private:
  std::uint64_t state_ = 0;
};

}  // namespace frostmark
