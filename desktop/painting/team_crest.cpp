#include "desktop/painting/team_crest.h"

#include <QPainter>
#include <QPainterPath>

#include "desktop/painting/measures.h"
#include "desktop/painting/palette.h"

namespace frostmark {
namespace {

QPainterPath Shield(const QRectF& rect) {
  const double w = rect.width();
  const double h = rect.height();
  const auto at = [&](double x, double y) {
    return QPointF(rect.left() + x * w, rect.top() + y * h);
  };
  QPainterPath shield(at(0.5, 0));
  shield.quadTo(at(0.72, 0.1), at(0.96, 0.1));
  shield.cubicTo(at(1.0, 0.55), at(0.86, 0.82), at(0.5, 1));
  shield.cubicTo(at(0.14, 0.82), at(0.0, 0.55), at(0.04, 0.1));
  shield.quadTo(at(0.28, 0.1), at(0.5, 0));
  return shield;
}

QString Initials(const QString& team) {
  QString initials;
  for (const QString& word : team.split(' ', Qt::SkipEmptyParts)) initials += word[0].toUpper();
  return initials.left(2);
}

// A number that a name always gets, on every machine.
unsigned int Pattern(const QString& team) {
  unsigned int sum = 17;
  for (const QChar letter : team) sum = sum * 31 + letter.unicode();
  return sum;
}

void PaintPattern(QPainter& painter, const QRectF& rect, unsigned int pattern) {
  const double w = rect.width();
  const double h = rect.height();
  QPainterPath stripes;
  switch (pattern % 4) {
    case 0:  // a band across
      stripes.addRect(rect.left(), rect.top() + h * 0.62, w, h * 0.14);
      break;
    case 1:  // half and half
      stripes.addRect(rect.left(), rect.top(), w / 2, h);
      break;
    case 2:  // a sash
      stripes.addPolygon(QPolygonF(
          {rect.topLeft() + QPointF(0, h * 0.1), rect.topLeft() + QPointF(w * 0.28, 0),
           rect.bottomRight() - QPointF(0, h * 0.22), rect.bottomRight() - QPointF(w * 0.28, 0)}));
      break;
    default:  // a chevron
      stripes.addPolygon(QPolygonF(
          {rect.topLeft() + QPointF(0, h * 0.5), rect.topLeft() + QPointF(w / 2, h * 0.74),
           rect.topLeft() + QPointF(w, h * 0.5), rect.topLeft() + QPointF(w, h * 0.66),
           rect.topLeft() + QPointF(w / 2, h * 0.9), rect.topLeft() + QPointF(0, h * 0.66)}));
      break;
  }
  painter.fillPath(stripes, QColor(255, 255, 255, 46));
}

}  // namespace

void PaintCrest(QPainter& painter, const QRectF& rect, const QString& team, const QColor& colour) {
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  const QPainterPath shield = Shield(rect);
  const double line = rect.height() * 0.045;
  if (team.isEmpty()) {
    painter.setBrush(QColor(255, 255, 255, 14));
    painter.setPen(QPen(QColor(palette::kEdge), line, Qt::DashLine));
    painter.drawPath(shield);
    painter.restore();
    return;
  }
  QLinearGradient cloth(rect.topLeft(), rect.bottomLeft());
  cloth.setColorAt(0, colour.lighter(118));
  cloth.setColorAt(1, colour.darker(145));
  painter.fillPath(shield, cloth);
  painter.setClipPath(shield, Qt::IntersectClip);
  PaintPattern(painter, rect, Pattern(team));
  painter.setClipping(false);
  painter.setBrush(Qt::NoBrush);
  painter.setPen(QPen(QColor(palette::kIce), line));
  painter.drawPath(shield);
  QFont letters(kPosterFace);
  letters.setPixelSize(std::max(6, static_cast<int>(rect.height() * 0.36)));
  painter.setFont(letters);
  painter.setPen(Qt::white);
  painter.drawText(rect.adjusted(0, 0, 0, -rect.height() * 0.06), Qt::AlignCenter, Initials(team));
  painter.restore();
}

}  // namespace frostmark
