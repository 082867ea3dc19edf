#include "desktop/access.h"

#include <QAccessibleWidget>

#include "desktop/announcer.h"
#include "desktop/list_access.h"
#include "desktop/list_view.h"
#include "desktop/screen_window.h"

namespace frostmark {
namespace {

// It shows nothing, so that nobody would ever be told of it if it went by what is seen.
class AnnouncementAccess : public QAccessibleWidget {
 public:
  explicit AnnouncementAccess(Announcement& announcement)
      : QAccessibleWidget(&announcement, QAccessible::Notification) {}

  QAccessible::State state() const override {
    QAccessible::State state = QAccessibleWidget::state();
    state.invisible = widget()->accessibleName().isEmpty();
    return state;
  }
};

QAccessibleInterface* AccessTo(const QString& /*class_name*/, QObject* object) {
  if (auto* list = qobject_cast<ListView*>(object)) return new ListAccess(*list);
  if (auto* news = qobject_cast<Announcement*>(object)) return new AnnouncementAccess(*news);
  if (auto* window = qobject_cast<ScreenWindow*>(object)) {
    return new QAccessibleWidget(window, QAccessible::Window);
  }
  return nullptr;
}

}  // namespace

void InstallAccess() { QAccessible::installFactory(AccessTo); }

}  // namespace frostmark
