#include "desktop/widgets/position_badge.h"

#include <QFont>
#include <QPainter>

namespace frostmark {

QColor PositionColor(const QString& position) {
  if (position == "GO") return {0xE8, 0xB0, 0x3A};
  if (position == "RD" || position == "LD") return {0x2F, 0x7F, 0xD8};
  if (position == "RF" || position == "CF" || position == "LF") return {0xD6, 0x39, 0x4C};
  return {0x7C, 0x8F, 0xAE};
}

QSizeF PositionBadgeSize(const QFontMetricsF& metrics) {
  return {metrics.horizontalAdvance("GO") + metrics.averageCharWidth() * 1.6,
          metrics.height() * 1.15};
}

void PaintPositionBadge(QPainter& painter, const QRectF& rect, const QString& position) {
  const QColor color = PositionColor(position);
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  painter.setBrush(color);
  const double radius = rect.height() * 0.28;
  painter.drawRoundedRect(rect, radius, radius);

  QFont font = painter.font();
  font.setBold(true);
  if (font.pixelSize() > 0) {
    font.setPixelSize(qRound(font.pixelSize() * 0.85));
  } else {
    font.setPointSizeF(font.pointSizeF() * 0.85);
  }
  painter.setFont(font);
  painter.setPen(position == "GO" ? QColor(0x1A, 0x14, 0x00) : QColor(Qt::white));
  painter.drawText(rect, Qt::AlignCenter, position);
  painter.restore();
}

}  // namespace frostmark
