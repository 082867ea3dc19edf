#include "desktop/screen_form.h"

#include <QMetaObject>

namespace frostmark {

ScreenForm::ScreenForm(QWidget* parent) : QWidget(parent) { setAttribute(Qt::WA_StyledBackground); }

void ScreenForm::NoteChange() {
  if (refresh_due_) return;
  refresh_due_ = true;
  QMetaObject::invokeMethod(
      this,
      [this] {
        refresh_due_ = false;
        emit Refreshed();
      },
      Qt::QueuedConnection);
}

}  // namespace frostmark
