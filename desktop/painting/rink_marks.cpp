#include "desktop/painting/rink_marks.h"

#include <QPainter>

#include "desktop/painting/rink_ice.h"

namespace frostmark::rink {
namespace {

constexpr double kLight = 32;  // how far the lamp shines

}  // namespace

QPointF GoalOf(int scoring_team) {
  const double deep = kGoalLine - 2;
  return {scoring_team == 1 ? kLength - deep : deep, kWidth / 2};
}

void PaintPuck(QPainter& painter, const QPointF& at) {
  painter.setPen(Qt::NoPen);
  painter.setBrush(QColor(10, 24, 48, 70));
  painter.drawEllipse(at + QPointF(0.5, 0.8), kPuck, kPuck * 0.85);
  painter.setBrush(QColor(0x10, 0x18, 0x26));
  painter.drawEllipse(at, kPuck, kPuck * 0.85);
  painter.setPen(QPen(QColor(0x6F, 0x84, 0xA2), 0.3));
  painter.setBrush(Qt::NoBrush);
  painter.drawEllipse(at, kPuck * 0.6, kPuck * 0.5);
}

void PaintWay(QPainter& painter, const QPointF& from, const QPointF& to) {
  QLinearGradient fade(from, to);
  fade.setColorAt(0, QColor(12, 28, 54, 0));
  fade.setColorAt(1, QColor(12, 28, 54, 150));
  painter.setPen(QPen(QBrush(fade), 1.1, Qt::DashLine, Qt::RoundCap));
  painter.drawLine(from, to);
}

void PaintShot(QPainter& painter, const QPointF& from, int team, QColor color) {
  const QPointF goal = GoalOf(team);
  painter.setPen(QPen(color, 1.3, Qt::SolidLine, Qt::RoundCap));
  painter.drawLine(from, goal);
  color.setAlpha(70);
  painter.setPen(QPen(color, 3.2, Qt::SolidLine, Qt::RoundCap));
  painter.drawLine(from, goal);
}

void PaintLamp(QPainter& painter, int team) {
  // Off the goal towards the middle, so that the light is gone where the boards are.
  const QPointF goal = GoalOf(team);
  const QPointF middle(goal.x() < kLength / 2 ? kLight : kLength - kLight, goal.y());
  QRadialGradient light(middle, kLight, goal);
  light.setColorAt(0, QColor(255, 236, 170, 235));
  light.setColorAt(0.25, QColor(244, 120, 82, 190));
  light.setColorAt(1, QColor(217, 48, 62, 0));
  painter.setPen(Qt::NoPen);
  painter.setBrush(light);
  painter.drawEllipse(middle, kLight, kLight);
}

}  // namespace frostmark::rink
