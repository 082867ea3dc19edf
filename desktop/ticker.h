#pragma once

#include <QTimer>
#include <chrono>

#include "ui/controls.h"

namespace frostmark {

class Guard;

// The clock behind one timer control. A tick that comes while the one before is still at work, in
// one of its yields, is left out.
class Ticker : public QObject, public Control::Observer {
  Q_OBJECT

 public:
  Ticker(Timer& timer, Guard& guard, std::chrono::milliseconds interval);

  void ControlChanged(Control& control) override;

 private:
  void Tick();

  Timer& timer_;
  Guard& guard_;
  QTimer clock_;
  bool ticking_ = false;
};

}  // namespace frostmark
