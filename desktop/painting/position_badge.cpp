#include "desktop/painting/position_badge.h"

#include <QFont>
#include <QPainter>

#include "desktop/painting/palette.h"

namespace frostmark {

QColor PositionColor(const QString& position) {
  if (position == "GO") return palette::kIce;
  if (position == "RD" || position == "LD") return palette::kBlueDeep;
  if (position == "RF" || position == "CF" || position == "LF") return palette::kRedDeep;
  return palette::kEdge;
}

QSizeF PositionBadgeSize(const QFontMetricsF& metrics) {
  return {metrics.horizontalAdvance("GO") + metrics.averageCharWidth() * 1.6,
          metrics.height() * 1.15};
}

void PaintPositionBadge(QPainter& painter, const QRectF& rect, const QString& position) {
  const QColor color = PositionColor(position);
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  // The edge keeps a blue badge apart from the blue of a selected row.
  painter.setPen(QPen(color.lighter(170), 1));
  painter.setBrush(color);
  const double radius = rect.height() * 0.28;
  painter.drawRoundedRect(rect, radius, radius);

  QFont font = painter.font();
  font.setWeight(QFont::DemiBold);
  if (font.pixelSize() > 0) {
    font.setPixelSize(qRound(font.pixelSize() * 0.85));
  } else {
    font.setPointSizeF(font.pointSizeF() * 0.85);
  }
  painter.setFont(font);
  painter.setPen(QColor(position == "GO" ? palette::kDeep : palette::kIce));
  painter.drawText(rect, Qt::AlignCenter, position);
  painter.restore();
}

}  // namespace frostmark
