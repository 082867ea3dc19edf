#include "desktop/ticker.h"

#include "desktop/guard.h"

namespace frostmark {

Ticker::Ticker(Timer& timer, Guard& guard, std::chrono::milliseconds interval)
    : timer_(timer), guard_(guard) {
  clock_.setTimerType(Qt::PreciseTimer);
  clock_.setInterval(interval);
  connect(&clock_, &QTimer::timeout, this, &Ticker::Tick);
  timer_.SetObserver(this);
}

void Ticker::ControlChanged(Control& /*control*/) {
  if (!timer_.Enabled()) {
    clock_.stop();
  } else if (!clock_.isActive()) {
    clock_.start();
  }
}

void Ticker::Tick() {
  if (ticking_) return;
  ticking_ = true;
  guard_.Call([this] { timer_.Tick(); });
  ticking_ = false;
}

}  // namespace frostmark
