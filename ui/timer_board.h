#pragma once

#include <chrono>
#include <functional>
#include <optional>
#include <vector>

#include "ui/controls.h"
#include "ui/screen.h"

namespace frostmark {

// The timers of a program on a clock that somebody else moves. A timer that is enabled becomes due
// an interval later and then every interval; ticks run in the order in which they are due.
class TimerBoard : public Control::Observer {
 public:
  using Time = std::chrono::microseconds;

  explicit TimerBoard(std::function<Time()> now) : now_(std::move(now)) {}

  // Takes over every timer of SCREENS.
  void Watch(const ScreenList& screens);

  // When the next tick is due, if one is.
  std::optional<Time> NextDue() const;

  // Ticks the timer that has been due longest, if one is due by now. A timer whose tick is still
  // running is passed over: none ticks inside its own tick.
  bool TickOne();

  void ControlChanged(Control& control) override;

 private:
  struct Entry {
    Timer* timer;
    Time due{};
    bool running = false;
    bool ticking = false;
  };

  const Entry* Soonest() const;

  std::function<Time()> now_;
  std::vector<Entry> entries_;
};

}  // namespace frostmark
