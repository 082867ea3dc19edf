#include "desktop/widgets/focus_keeper.h"

#include <QAbstractButton>
#include <QEvent>

namespace frostmark {

void FocusKeeper::Add(QAbstractButton& button) {
  button.installEventFilter(this);
  connect(&button, &QAbstractButton::pressed, this, [this, &button] { pressed_ = &button; });
}

bool FocusKeeper::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::EnabledChange && watched == pressed_) {
    auto* button = static_cast<QAbstractButton*>(watched);
    if (button->isEnabled() && button->isVisible()) button->setFocus();
  }
  return QObject::eventFilter(watched, event);
}

}  // namespace frostmark
