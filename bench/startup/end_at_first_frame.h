#pragma once

#include <QCoreApplication>
#include <QEvent>
#include <QTimer>
#include <QWidget>
#include <cstdlib>

namespace frostmark {

// Ends the process as soon as the first window has painted itself and what it painted has been
// handed to the window system, so that the life of the process is the time to its first frame.
class EndAtFirstFrame : public QObject {
 public:
  EndAtFirstFrame() { QCoreApplication::instance()->installEventFilter(this); }

  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() == QEvent::Paint && watched->isWidgetType() &&
        static_cast<QWidget*>(watched)->isWindow()) {
      QTimer::singleShot(0, [] { std::_Exit(EXIT_SUCCESS); });
    }
    return false;
  }
};

}  // namespace frostmark
