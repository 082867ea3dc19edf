#include "desktop/painting/rink_ice.h"

#include <QPainter>

#include "desktop/painting/palette.h"

namespace frostmark::rink {
namespace {

constexpr double kCorner = 28;
constexpr double kBoards = 2.4;     // how thick they are drawn
constexpr double kBlueLine = 75;    // from the end boards
constexpr double kCircle = 15;      // radius of a face-off circle
constexpr double kAside = 22;       // from the middle axis to the outer face-off dots
constexpr double kEndDot = 31;      // from the end boards to the dots of the end zones
constexpr double kNeutralDot = 80;  // to those beside the blue lines
constexpr double kMiddle = kWidth / 2;

const QColor kRedLine(palette::kRed);
const QColor kBlueLineColor(palette::kBlue);

QPen Line(const QColor& color, double feet) { return {color, feet, Qt::SolidLine, Qt::FlatCap}; }

QPainterPath Outline() {
  QPainterPath outline;
  outline.addRoundedRect(QRectF(0, 0, kLength, kWidth), kCorner, kCorner);
  return outline;
}

void PaintDot(QPainter& painter, const QPointF& at, const QColor& color) {
  painter.setPen(Qt::NoPen);
  painter.setBrush(color);
  painter.drawEllipse(at, 1.3, 1.3);
}

// A face-off circle of an end zone, with the marks where the players line up.
void PaintEndCircle(QPainter& painter, const QPointF& at) {
  painter.setBrush(Qt::NoBrush);
  painter.setPen(Line(kRedLine, 0.55));
  painter.drawEllipse(at, kCircle, kCircle);
  for (const double side : {-1.0, 1.0}) {
    for (const double end : {-1.0, 1.0}) {
      const QPointF corner = at + QPointF(side * 2.2, end * 1.4);
      painter.drawLine(corner, corner + QPointF(side * 3.2, 0));
      painter.drawLine(corner, corner + QPointF(0, end * 2.4));
    }
    painter.drawLine(at + QPointF(side * 2.2, -kCircle), at + QPointF(side * 2.2, -kCircle - 1.6));
    painter.drawLine(at + QPointF(side * 2.2, kCircle), at + QPointF(side * 2.2, kCircle + 1.6));
  }
  PaintDot(painter, at, kRedLine);
}

// The left end: goal line, crease, goal, its two circles.
void PaintEnd(QPainter& painter) {
  painter.setPen(Line(kRedLine, 0.55));
  painter.drawLine(QPointF(kGoalLine, 0), QPointF(kGoalLine, kWidth));

  QPainterPath crease(QPointF(kGoalLine, kMiddle - 6));
  crease.arcTo(QRectF(kGoalLine - 6, kMiddle - 6, 12, 12), 90, -180);
  crease.closeSubpath();
  painter.setPen(Line(kRedLine, 0.5));
  painter.setBrush(QColor(0x8F, 0xC4, 0xF6));
  painter.drawPath(crease);

  const QRectF net(kGoalLine - 4, kMiddle - 3.2, 4, 6.4);
  painter.setPen(Line(kRedLine, 0.7));
  painter.setBrush(QBrush(QColor(0x93, 0xA5, 0xB8), Qt::DiagCrossPattern));
  painter.drawRoundedRect(net, 1.6, 1.6);

  PaintEndCircle(painter, {kEndDot, kMiddle - kAside});
  PaintEndCircle(painter, {kEndDot, kMiddle + kAside});
  PaintDot(painter, {kNeutralDot, kMiddle - kAside}, kRedLine);
  PaintDot(painter, {kNeutralDot, kMiddle + kAside}, kRedLine);
}

void PaintMiddle(QPainter& painter) {
  painter.setPen(Line(kBlueLineColor, 1.5));
  for (const double x : {kBlueLine, kLength - kBlueLine}) {
    painter.drawLine(QPointF(x, 0), QPointF(x, kWidth));
  }
  painter.setPen(Line(kRedLine, 1.5));
  painter.drawLine(QPointF(kLength / 2, 0), QPointF(kLength / 2, kWidth));
  QPen checks(QColor(Qt::white), 0.5, Qt::DashLine, Qt::FlatCap);
  painter.setPen(checks);
  painter.drawLine(QPointF(kLength / 2, 0), QPointF(kLength / 2, kWidth));
  painter.setBrush(Qt::NoBrush);
  painter.setPen(Line(kBlueLineColor, 0.6));
  painter.drawEllipse(QPointF(kLength / 2, kMiddle), kCircle, kCircle);
  PaintDot(painter, {kLength / 2, kMiddle}, kBlueLineColor);
}

}  // namespace

QTransform Feet(const QSizeF& size) {
  const double scale =
      std::min(size.width() / (kLength + 2 * kBoards), size.height() / (kWidth + 2 * kBoards));
  QTransform feet;
  feet.translate((size.width() - kLength * scale) / 2, (size.height() - kWidth * scale) / 2);
  feet.scale(scale, scale);
  return feet;
}

void PaintIce(QPainter& painter) {
  painter.save();
  const QPainterPath outline = Outline();
  QLinearGradient ice(QPointF(0, 0), QPointF(0, kWidth));
  ice.setColorAt(0, QColor(0xFB, 0xFD, 0xFF));
  ice.setColorAt(1, QColor(0xD9, 0xE9, 0xF6));
  painter.fillPath(outline, ice);
  painter.setClipPath(outline);
  PaintMiddle(painter);
  PaintEnd(painter);
  painter.save();
  painter.translate(kLength, 0);
  painter.scale(-1, 1);
  PaintEnd(painter);
  painter.restore();
  painter.setClipping(false);

  painter.setBrush(Qt::NoBrush);
  painter.setPen(QPen(QColor(palette::kFrost), kBoards));
  const double half = kBoards / 2;
  painter.drawRoundedRect(QRectF(-half, -half, kLength + kBoards, kWidth + kBoards), kCorner + half,
                          kCorner + half);
  painter.setPen(QPen(QColor(palette::kGold), 0.5));
  painter.drawRoundedRect(QRectF(-0.2, -0.2, kLength + 0.4, kWidth + 0.4), kCorner, kCorner);
  painter.restore();
}

}  // namespace frostmark::rink
