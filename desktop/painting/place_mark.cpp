#include "desktop/painting/place_mark.h"

#include <QPainter>
#include <QPainterPath>
#include <cmath>
#include <numbers>

#include "desktop/painting/palette.h"

namespace frostmark {

namespace {

constexpr int kLastRow = 5;

QPainterPath Arrow(const QRectF& rect) {
  const double x = rect.center().x();
  const double half = rect.width() / 2;
  QPainterPath path(QPointF(x, rect.top()));
  path.lineTo(x + half, rect.top() + rect.height() * 0.55);
  path.lineTo(x + half * 0.4, rect.top() + rect.height() * 0.55);
  path.lineTo(x + half * 0.4, rect.bottom());
  path.lineTo(x - half * 0.4, rect.bottom());
  path.lineTo(x - half * 0.4, rect.top() + rect.height() * 0.55);
  path.lineTo(x - half, rect.top() + rect.height() * 0.55);
  path.closeSubpath();
  return path;
}

QPainterPath Star(const QRectF& rect) {
  QPainterPath path;
  const double radius = std::min(rect.width(), rect.height()) / 2;
  for (int i = 0; i < 10; ++i) {
    const double angle = -std::numbers::pi / 2 + i * std::numbers::pi / 5;
    const double reach = i % 2 == 0 ? radius : radius * 0.45;
    const QPointF point = rect.center() + QPointF(std::cos(angle) * reach, std::sin(angle) * reach);
    if (i == 0) {
      path.moveTo(point);
    } else {
      path.lineTo(point);
    }
  }
  path.closeSubpath();
  return path;
}

}  // namespace

Fate FateOf(League league, int row) {
  if (row == 0) return league == League::kTop ? Fate::kChampion : Fate::kGoesUp;
  if (row == kLastRow && league != League::kBottom) return Fate::kGoesDown;
  return Fate::kStays;
}

QColor FateColor(Fate fate) {
  switch (fate) {
    case Fate::kChampion:
      return palette::kGold;
    case Fate::kGoesUp:
      return palette::kGreen;
    case Fate::kGoesDown:
      return palette::kRedBright;
    case Fate::kStays:
      break;
  }
  return palette::kFaint;
}

void PaintFate(QPainter& painter, const QRectF& rect, Fate fate) {
  if (fate == Fate::kStays) return;
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  painter.setBrush(FateColor(fate));
  if (fate == Fate::kChampion) {
    painter.drawPath(Star(rect));
  } else {
    if (fate == Fate::kGoesDown) {
      painter.translate(rect.center());
      painter.rotate(180);
      painter.translate(-rect.center());
    }
    painter.drawPath(Arrow(rect));
  }
  painter.restore();
}

}  // namespace frostmark
