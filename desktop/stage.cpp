#include "desktop/stage.h"

#include <QApplication>
#include <QFont>
#include <QScreen>
#include <algorithm>

namespace frostmark {
namespace {

// The stage in ordinary letters: as little as the fullest pages, results and draft, can do with.
constexpr double kWidth = 87;
constexpr double kHeight = 50;
QRect Room(QPoint at) {
  const QScreen* monitor = QGuiApplication::screenAt(at);
  if (monitor == nullptr) monitor = QGuiApplication::primaryScreen();
  return monitor->availableGeometry();
}

// WINDOW moved so that it lies in ROOM: where it does not fit, its top left corner does.
QRect Inside(QRect window, const QRect& room) {
  window.moveRight(std::min(window.right(), room.right()));
  window.moveBottom(std::min(window.bottom(), room.bottom()));
  window.moveLeft(std::max(window.left(), room.left()));
  window.moveTop(std::max(window.top(), room.top()));
  return window;
}

}  // namespace

QSize Stage::Size() { return Size(QApplication::font().pointSizeF()); }

QSize Stage::Size(double points) {
  // A font's own metrics are rounded, which the stage should not be.
  constexpr double kPointsPerInch = 72;
  const double letter =
      points * QGuiApplication::primaryScreen()->logicalDotsPerInchY() / kPointsPerInch;
  return (QSizeF(kWidth, kHeight) * letter).toSize();
}

QRect Stage::ForScreen(QSize size) const {
  const QRect room =
      moved_ ? Room(center_.toPoint()) : QGuiApplication::primaryScreen()->availableGeometry();
  const QPointF center = moved_ ? center_ : QRectF(room).center();
  const QPointF corner = center - QPointF(size.width(), size.height()) / 2;
  return Inside(QRect(corner.toPoint(), size), room);
}

QRect Stage::ForPopup(QSize size, const QRect& opener) const {
  const QRect room = Room(opener.center());
  QRect place(QPoint(), size);
  place.moveCenter(opener.center());
  if (opener.right() + size.width() <= room.right()) {
    place.moveLeft(opener.right() + 1);
  } else if (opener.left() - size.width() >= room.left()) {
    place.moveRight(opener.left() - 1);
  } else {
    place.moveRight(room.right());
  }
  return Inside(place, room);
}

void Stage::BeginAround(const QPoint& center) {
  if (QGuiApplication::screenAt(center) == nullptr) return;
  moved_ = true;
  center_ = center;
}

std::optional<QPoint> Stage::MovedTo() const {
  return moved_ ? std::optional(center_.toPoint()) : std::nullopt;
}

void Stage::MoveTo(const QRect& window) {
  moved_ = true;
  center_ = QRectF(window).center();
}

}  // namespace frostmark
