#include "desktop/access.h"

#include <QAccessibleWidget>

#include "desktop/announcer.h"
#include "desktop/list_access.h"
#include "desktop/list_view.h"
#include "desktop/screen_window.h"

namespace frostmark {
namespace {

// It shows nothing, so that nobody would ever be told of it if it went by what is seen.
class AnnouncerAccess : public QAccessibleWidget {
 public:
  explicit AnnouncerAccess(Announcer& announcer)
      : QAccessibleWidget(&announcer, QAccessible::Notification) {}

  QAccessible::State state() const override {
    QAccessible::State state = QAccessibleWidget::state();
    state.invisible = false;
    return state;
  }
};

QAccessibleInterface* AccessTo(const QString& /*class_name*/, QObject* object) {
  if (auto* list = qobject_cast<ListView*>(object)) return new ListAccess(*list);
  if (auto* announcer = qobject_cast<Announcer*>(object)) return new AnnouncerAccess(*announcer);
  if (auto* window = qobject_cast<ScreenWindow*>(object)) {
    return new QAccessibleWidget(window, QAccessible::Window);
  }
  return nullptr;
}

}  // namespace

void InstallAccess() { QAccessible::installFactory(AccessTo); }

}  // namespace frostmark
