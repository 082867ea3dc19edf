#pragma once

#include <chrono>
#include <optional>

#include "ui/screen.h"
#include "ui/timer_board.h"

namespace frostmark {

// Time since the start of a program on a clock that moves only when it is told to, and the timers
// that go by it. For front ends without an event loop of their own.
class VirtualClock {
 public:
  using Time = TimerBoard::Time;

  VirtualClock() : timers_([this] { return now_; }) {}
  VirtualClock(const VirtualClock&) = delete;
  VirtualClock& operator=(const VirtualClock&) = delete;

  // Takes over every timer of SCREENS.
  void Watch(const ScreenList& screens) { timers_.Watch(screens); }

  Time Now() const { return now_; }
  void MoveTo(Time time) { now_ = time; }
  // The clock on the wall, which stood at noon at the start. It does not go back to 0 at midnight.
  Time SinceMidnight() const { return std::chrono::hours(12) + now_; }

  // When the next tick is due, if one is.
  std::optional<Time> NextDue() const { return timers_.NextDue(); }
  // Ticks the timer that has been due longest. False when none is due by now.
  bool TickOne() { return timers_.TickOne(); }

 private:
  Time now_{0};
  TimerBoard timers_;
};

}  // namespace frostmark
