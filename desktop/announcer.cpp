#include "desktop/announcer.h"

#include <QAccessible>

#include "desktop/screen_form.h"

namespace frostmark {

void Announcer::Say(const QString& text) {
  // A screen reader speaks a notification when it comes up; so the last one goes first.
  QAccessibleEvent gone(this, QAccessible::ObjectHide);
  QAccessible::updateAccessibility(&gone);
  setAccessibleName(text);
  QAccessibleEvent come(this, QAccessible::ObjectShow);
  QAccessible::updateAccessibility(&come);
}

void Announce(ScreenForm& form, const QString& text) {
  auto* announcer = form.findChild<Announcer*>();
  if (announcer == nullptr) {
    announcer = new Announcer(&form);
    announcer->setObjectName("look_announcer");
    announcer->hide();
  }
  announcer->Say(text);
}

}  // namespace frostmark
