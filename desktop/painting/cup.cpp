#include "desktop/painting/cup.h"

#include <QPainter>
#include <QPainterPath>

namespace frostmark {

void PaintCup(QPainter& painter, const QRectF& rect, const QColor& color) {
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.translate(rect.topLeft());
  // Drawn on a ground of 10 by 10.
  painter.scale(rect.width() / 10, rect.height() / 10);
  QPainterPath cup(QPointF(2.4, 0.8));
  cup.lineTo(7.6, 0.8);
  cup.cubicTo(7.6, 4.2, 6.6, 5.6, 5.6, 6.0);
  cup.lineTo(5.6, 7.8);
  cup.lineTo(7.4, 7.8);
  cup.lineTo(7.4, 9.2);
  cup.lineTo(2.6, 9.2);
  cup.lineTo(2.6, 7.8);
  cup.lineTo(4.4, 7.8);
  cup.lineTo(4.4, 6.0);
  cup.cubicTo(3.4, 5.6, 2.4, 4.2, 2.4, 0.8);
  painter.fillPath(cup, color);
  painter.setPen(QPen(color, 0.8));
  painter.setBrush(Qt::NoBrush);
  painter.drawArc(QRectF(0.6, 1.2, 3.4, 3.4), 90 * 16, 190 * 16);
  painter.drawArc(QRectF(6.0, 1.2, 3.4, 3.4), 90 * 16, -190 * 16);
  painter.restore();
}

}  // namespace frostmark
