#include "desktop/widgets/rating_chip.h"

#include <QPainter>
#include <algorithm>

#include "desktop/painting/measures.h"
#include "desktop/painting/palette.h"

namespace frostmark {
namespace {

constexpr double kLift = 0.2;  // room around the disc to lift in, in lines of text

}  // namespace

void RatingChip::SetColor(const QColor& color) {
  color_ = color;
  update();
}

void RatingChip::SetCarrier(bool carrier) {
  if (carrier == carrier_) return;
  carrier_ = carrier;
  update();
}

QFont RatingChip::PosterFont() const {
  QFont poster = font();
  poster.setFamily(kPosterFace);
  return poster;
}

QSize RatingChip::sizeHint() const {
  const int line = fontMetrics().height();
  const int figures = QFontMetrics(PosterFont()).horizontalAdvance(text());
  const int lift = qRound(line * kLift);
  return {std::max(2 * line, figures + line / 2) + 2 * lift, 2 * line + 2 * lift};
}

double RatingChip::Radius() const { return fontMetrics().height(); }

void RatingChip::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  const double lift = fontMetrics().height() * kLift;
  QRectF disc = QRectF(rect()).adjusted(lift, lift, -lift, -lift);
  const double edge = disc.height() * 0.075;
  disc.adjust(edge, edge, -edge, -edge);
  if (carrier_) {
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(10, 24, 48, 90));
    painter.drawRoundedRect(disc.translated(0, lift), disc.height() / 2, disc.height() / 2);
    disc.adjust(-lift / 2, -lift / 2, lift / 2, lift / 2);
    disc.translate(0, -lift / 2);
  }
  QLinearGradient jersey(disc.topLeft(), disc.bottomLeft());
  jersey.setColorAt(0, color_.lighter(115));
  jersey.setColorAt(1, color_.darker(130));
  painter.setBrush(jersey);
  painter.setPen(
      QPen(carrier_ ? QColor(palette::kGold) : QColor(Qt::white), carrier_ ? edge * 1.9 : edge));
  painter.drawRoundedRect(disc, disc.height() / 2, disc.height() / 2);
  painter.setFont(PosterFont());
  painter.setPen(Qt::white);
  painter.drawText(disc, Qt::AlignCenter, text());
}

}  // namespace frostmark
