#include "desktop/painting/rating_painter.h"

#include <QLinearGradient>
#include <QPainter>
#include <algorithm>

#include "desktop/painting/palette.h"

namespace frostmark {

QColor RatingColor(int rating) {
  if (rating >= 90) return palette::kIce;
  if (rating >= 80) return palette::kBlueBright;
  if (rating >= 70) return palette::kBlue;
  return palette::kFaint;
}

double RatingShare(int rating) {
  return std::clamp((rating - kBarStart) / double{kBarEnd - kBarStart}, 0.0, 1.0);
}

void PaintShare(QPainter& painter, const QRectF& rect, double share, const QColor& color,
                bool from_right) {
  const double radius = rect.height() / 2;
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  painter.setBrush(QColor(255, 255, 255, 28));
  painter.drawRoundedRect(rect, radius, radius);

  if (share > 0) {
    QRectF filled = rect;
    filled.setWidth(std::max(rect.height(), rect.width() * std::min(share, 1.0)));
    if (from_right) filled.moveRight(rect.right());
    QLinearGradient shine(filled.topLeft(), filled.topRight());
    shine.setColorAt(from_right ? 1 : 0, color.darker(150));
    shine.setColorAt(from_right ? 0 : 1, color);
    painter.setBrush(shine);
    painter.drawRoundedRect(filled, radius, radius);
  }
  painter.restore();
}

void PaintRatingBar(QPainter& painter, const QRectF& rect, int rating, bool from_right) {
  PaintShare(painter, rect, RatingShare(rating), RatingColor(rating), from_right);
}

}  // namespace frostmark
