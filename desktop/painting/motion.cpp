#include "desktop/painting/motion.h"

#include <QApplication>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusVariant>
#include <QStyle>

namespace frostmark {
namespace {

// What the desktop's settings portal says of motion.
class Portal : public QObject {
 public:
  explicit Portal(QObject* parent) : QObject(parent) {
    Ask("org.gnome.desktop.interface", "enable-animations");
    Ask("org.kde.kdeglobals.KDE", "AnimationDurationFactor");
  }

  bool asks_for_less() const { return asks_for_less_; }

 private:
  void Ask(const QString& group, const QString& key) {
    QDBusMessage question = QDBusMessage::createMethodCall(
        "org.freedesktop.portal.Desktop", "/org/freedesktop/portal/desktop",
        "org.freedesktop.portal.Settings", "Read");
    question << group << key;
    auto* answer =
        new QDBusPendingCallWatcher(QDBusConnection::sessionBus().asyncCall(question), this);
    connect(answer, &QDBusPendingCallWatcher::finished, this, [this, answer] {
      Hear(answer->reply());
      answer->deleteLater();
    });
  }

  // A switch that is off, or a duration of nothing, which may come as text.
  void Hear(const QDBusMessage& reply) {
    if (reply.type() != QDBusMessage::ReplyMessage || reply.arguments().isEmpty()) return;
    QVariant value = reply.arguments().first();
    while (value.canConvert<QDBusVariant>()) value = value.value<QDBusVariant>().variant();
    bool number = false;
    const double amount = value.toDouble(&number);
    if (number && amount == 0) asks_for_less_ = true;
  }

  bool asks_for_less_ = false;
};

}  // namespace

bool MotionWanted() {
  static const auto* const portal = new Portal(qApp);
  return !portal->asks_for_less() &&
         QApplication::style()->styleHint(QStyle::SH_Widget_Animation_Duration) > 0;
}

}  // namespace frostmark
