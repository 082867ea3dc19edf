#include "ui/timer_board.h"

#include <algorithm>

namespace frostmark {

void TimerBoard::Watch(const ScreenList& screens) {
  for (Screen* screen : screens.All()) {
    for (Control* control : screen->Controls()) {
      if (control->Kind() != ControlKind::kTimer) continue;
      entries_.push_back({static_cast<Timer*>(control)});
      control->SetObserver(this);
    }
  }
}

void TimerBoard::ControlChanged(Control& control) {
  for (Entry& entry : entries_) {
    if (entry.timer != &control || entry.running == control.Enabled()) continue;
    entry.running = control.Enabled();
    entry.due = now_() + std::chrono::milliseconds(entry.timer->IntervalMs());
  }
}

const TimerBoard::Entry* TimerBoard::Soonest() const {
  const Entry* soonest = nullptr;
  for (const Entry& entry : entries_) {
    if (!entry.running || entry.ticking) continue;
    if (soonest == nullptr || entry.due < soonest->due) soonest = &entry;
  }
  return soonest;
}

std::optional<TimerBoard::Time> TimerBoard::NextDue() const {
  const Entry* soonest = Soonest();
  if (soonest == nullptr) return std::nullopt;
  return soonest->due;
}

bool TimerBoard::TickOne() {
  const Entry* soonest = Soonest();
  if (soonest == nullptr || soonest->due > now_()) return false;
  Entry* entry = &entries_[static_cast<std::size_t>(soonest - entries_.data())];
  struct Ticking {
    explicit Ticking(Entry& e) : entry(e) { entry.ticking = true; }
    ~Ticking() { entry.ticking = false; }
    Entry& entry;
  };
  const Time interval = std::chrono::milliseconds(entry->timer->IntervalMs());
  entry->due += interval;
  {
    const Ticking ticking(*entry);
    entry->timer->Tick();
  }
  // Ticks that were missed meanwhile are not made up for.
  if (entry->running && entry->due <= now_() - interval) entry->due = now_() + interval;
  return true;
}

}  // namespace frostmark
