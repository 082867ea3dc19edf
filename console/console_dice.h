#pragma once

#include <deque>

#include "console/transcript.h"
#include "records/dice.h"

namespace frostmark {

// Plays the results that a script has given, in order, before it leaves the rest to the clock.
class ConsoleDice : public Dice {
 public:
  explicit ConsoleDice(Transcript& transcript) : transcript_(transcript) {}

  void Queue(int result) { queued_.push_back(result); }
  // Prints every roll.
  void Trace(bool on) { traced_ = on; }

  // Throws RuntimeError when the queued result is outside 1 to N.
  int Roll(int n) override;

 private:
  int Take(int n);

  Transcript& transcript_;
  ClockDice clock_;
  std::deque<int> queued_;
  bool traced_ = false;
};

}  // namespace frostmark
