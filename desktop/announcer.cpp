#include "desktop/announcer.h"

#include <QAccessible>

#include "desktop/screen_form.h"

namespace frostmark {

void Announcement::Say(const QString& text) {
  // A screen reader speaks a notification when it comes up; so the last one goes first.
  QAccessibleEvent gone(this, QAccessible::ObjectHide);
  QAccessible::updateAccessibility(&gone);
  setAccessibleName(text);
  QAccessibleEvent come(this, QAccessible::ObjectShow);
  QAccessible::updateAccessibility(&come);
}

Announcer::Announcer(ScreenForm& form) : QObject(&form) {
  for (Announcement*& announcement : kept_) {
    announcement = new Announcement(&form);
    announcement->setObjectName("look_announcement");
    announcement->resize(0, 0);
    announcement->hide();
  }
}

void Announcer::Say(const QString& text) {
  kept_[next_]->Say(text);
  next_ = (next_ + 1) % kKept;
}

void Announce(ScreenForm& form, const QString& text) {
  auto* announcer = form.findChild<Announcer*>();
  if (announcer == nullptr) announcer = new Announcer(form);
  announcer->Say(text);
}

}  // namespace frostmark
