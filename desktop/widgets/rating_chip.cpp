#include "desktop/widgets/rating_chip.h"

#include <QPainter>

#include "desktop/palette.h"

namespace frostmark {

void RatingChip::SetColour(const QColor& colour) {
  colour_ = colour;
  update();
}

void RatingChip::SetCarrier(bool carrier) {
  if (carrier == carrier_) return;
  carrier_ = carrier;
  update();
}

QSize RatingChip::sizeHint() const {
  const int size = fontMetrics().height() * 2;
  return {std::max(size, fontMetrics().horizontalAdvance(text()) + fontMetrics().height()), size};
}

void RatingChip::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  const double edge = height() * 0.075;
  const QRectF disc = QRectF(rect()).adjusted(edge, edge, -edge, -edge);
  QLinearGradient jersey(disc.topLeft(), disc.bottomLeft());
  jersey.setColorAt(0, colour_.lighter(115));
  jersey.setColorAt(1, colour_.darker(130));
  painter.setBrush(jersey);
  painter.setPen(
      QPen(carrier_ ? QColor(palette::kGold) : QColor(Qt::white), carrier_ ? edge * 1.9 : edge));
  painter.drawRoundedRect(disc, disc.height() / 2, disc.height() / 2);
  QFont bold = font();
  bold.setBold(true);
  painter.setFont(bold);
  painter.setPen(Qt::white);
  painter.drawText(disc, Qt::AlignCenter, text());
}

}  // namespace frostmark
