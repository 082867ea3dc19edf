#include "desktop/widgets/trophy_picture.h"

#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>
#include <QRadialGradient>
#include <array>

#include "desktop/painting/palette.h"

namespace frostmark {

namespace {

// All shapes are drawn on a ground of 100 by 120 whose middle is x = 50.
constexpr double kWidth = 100;
constexpr double kHeight = 120;

QLinearGradient Metal(double left, double right) {
  QLinearGradient metal(left, 0, right, 0);
  const QColor gold(palette::kGold);
  metal.setColorAt(0, gold.darker(165));
  metal.setColorAt(0.28, gold.lighter(128));
  metal.setColorAt(0.45, gold);
  metal.setColorAt(0.8, gold.darker(140));
  metal.setColorAt(1, gold.darker(190));
  return metal;
}

void PaintGlow(QPainter& painter) {
  QRadialGradient glow(50, 50, 50);
  QColor light(palette::kGold);
  light.setAlphaF(0.30F);
  glow.setColorAt(0, light);
  light.setAlphaF(0);
  glow.setColorAt(1, light);
  painter.fillRect(QRectF(0, 0, 100, 100), glow);
}

void PaintHandles(QPainter& painter) {
  for (const double side : {-1.0, 1.0}) {
    QPainterPath handle(QPointF(50 + side * 28, 20));
    handle.cubicTo(QPointF(50 + side * 52, 16), QPointF(50 + side * 48, 52),
                   QPointF(50 + side * 17, 56));
    painter.setBrush(Qt::NoBrush);
    painter.setPen(
        QPen(QBrush(QColor(palette::kGold).darker(135)), 5, Qt::SolidLine, Qt::RoundCap));
    painter.drawPath(handle);
    painter.setPen(
        QPen(QBrush(QColor(palette::kGold).lighter(115)), 1.6, Qt::SolidLine, Qt::RoundCap));
    painter.drawPath(handle);
  }
}

void PaintBowl(QPainter& painter) {
  QPainterPath bowl(QPointF(20, 10));
  bowl.lineTo(80, 10);
  bowl.cubicTo(QPointF(80, 44), QPointF(68, 62), QPointF(55, 66));
  bowl.lineTo(45, 66);
  bowl.cubicTo(QPointF(32, 62), QPointF(20, 44), QPointF(20, 10));
  painter.setPen(Qt::NoPen);
  painter.setBrush(Metal(20, 80));
  painter.drawPath(bowl);
  painter.setBrush(QColor(palette::kGold).lighter(112));
  painter.drawEllipse(QPointF(50, 10), 30, 4.2);
  painter.setBrush(QColor(palette::kGold).darker(230));
  painter.drawEllipse(QPointF(50, 10.4), 26, 2.9);
}

// Two crossed sticks with a puck between their blades, engraved in the bowl.
void PaintEngraving(QPainter& painter) {
  const QPen pen(QBrush(QColor(palette::kGold).darker(240)), 2.2, Qt::SolidLine, Qt::RoundCap,
                 Qt::RoundJoin);
  painter.setPen(pen);
  painter.setBrush(Qt::NoBrush);
  for (const double side : {-1.0, 1.0}) {
    const std::array stick = {QPointF(50 - side * 10, 20), QPointF(50 + side * 8, 45),
                              QPointF(50 + side * 14, 46.5)};
    painter.drawPolyline(stick.data(), static_cast<int>(stick.size()));
  }
  painter.setPen(Qt::NoPen);
  painter.setBrush(pen.color());
  painter.drawEllipse(QPointF(50, 50.5), 3.6, 1.9);
}

void PaintStem(QPainter& painter) {
  painter.setPen(Qt::NoPen);
  painter.setBrush(Metal(43, 57));
  painter.drawRoundedRect(QRectF(41, 65, 18, 5), 2.5, 2.5);
  painter.drawRect(QRectF(46, 69, 8, 12));
  QPainterPath foot(QPointF(46, 80));
  foot.cubicTo(QPointF(46, 87), QPointF(36, 88), QPointF(33, 92));
  foot.lineTo(67, 92);
  foot.cubicTo(QPointF(64, 88), QPointF(54, 87), QPointF(54, 80));
  painter.setBrush(Metal(33, 67));
  painter.drawPath(foot);
}

void PaintPedestal(QPainter& painter) {
  QLinearGradient wood(0, 92, 0, 116);
  wood.setColorAt(0, QColor(palette::kEdge));
  wood.setColorAt(1, QColor(palette::kDeep));
  painter.setBrush(wood);
  painter.drawRoundedRect(QRectF(27, 92, 46, 18), 2, 2);
  painter.drawRoundedRect(QRectF(22, 109, 56, 8), 2, 2);
  painter.setBrush(Metal(36, 64));
  painter.drawRoundedRect(QRectF(36, 97, 28, 8), 1.5, 1.5);
}

}  // namespace

QSize TrophyPicture::sizeHint() const {
  const int height = fontMetrics().height() * 9;
  return {height * 5 / 6, height};
}

void TrophyPicture::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  const double scale = std::min(width() / kWidth, height() / kHeight);
  painter.translate((width() - kWidth * scale) / 2, (height() - kHeight * scale) / 2);
  painter.scale(scale, scale);
  PaintGlow(painter);
  PaintHandles(painter);
  PaintBowl(painter);
  PaintEngraving(painter);
  PaintStem(painter);
  PaintPedestal(painter);
}

}  // namespace frostmark
