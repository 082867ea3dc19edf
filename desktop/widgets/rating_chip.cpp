#include "desktop/widgets/rating_chip.h"

#include <QPainter>
#include <algorithm>

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

QFont RatingChip::PosterFont() const {
  QFont poster = font();
  poster.setFamily("Arial Black");
  return poster;
}

QSize RatingChip::sizeHint() const {
  const int line = fontMetrics().height();
  const int figures = QFontMetrics(PosterFont()).horizontalAdvance(text());
  return {std::max(2 * line, figures + line / 2), 2 * line};
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
  painter.setFont(PosterFont());
  painter.setPen(Qt::white);
  painter.drawText(disc, Qt::AlignCenter, text());
}

}  // namespace frostmark
