#include "desktop/widgets/rating_bar.h"

#include <QFontMetricsF>
#include <QPainter>
#include <cmath>

#include "desktop/painting/palette.h"
#include "desktop/painting/rating_painter.h"

namespace frostmark {

namespace {

// The years that the bar of an age runs through: a player's first season and about their last.
constexpr double kYoungest = 17;
constexpr double kOldest = 40;

constexpr double kShortestBar = 6;  // in heights of a line of text

}  // namespace

RatingBar::RatingBar(QWidget* parent) : QLabel(parent) {
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

QFont RatingBar::FigureFont() const {
  QFont figure = font();
  figure.setWeight(QFont::DemiBold);
  return figure;
}

QSize RatingBar::sizeHint() const {
  const QFontMetricsF metrics(FigureFont());
  const double figure =
      std::max(metrics.horizontalAdvance(text()), metrics.horizontalAdvance("00"));
  return {static_cast<int>(std::ceil(figure + metrics.height() * kShortestBar)),
          static_cast<int>(std::ceil(metrics.height() * 1.3))};
}

void RatingBar::PaintBar(QPainter& painter, const QRectF& rect, int value) const {
  if (scale_ == "age") {
    PaintShare(painter, rect, (value - kYoungest) / (kOldest - kYoungest), palette::kFrost,
               mirrored_);
  } else {
    PaintRatingBar(painter, rect, value, mirrored_);
  }
}

void RatingBar::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  painter.setFont(FigureFont());
  painter.setPen(palette().color(foregroundRole()));
  const QFontMetricsF metrics(painter.font());
  const QRectF whole = contentsRect();
  bool is_number = false;
  const int value = text().toInt(&is_number);
  const Qt::Alignment side = mirrored_ ? Qt::AlignLeft : Qt::AlignRight;
  painter.drawText(whole, static_cast<int>(side | Qt::AlignVCenter) | Qt::TextSingleLine, text());
  if (!is_number) return;

  const double figure =
      std::max(metrics.horizontalAdvance(text()), metrics.horizontalAdvance("00")) +
      metrics.height() * 0.5;
  QRectF bar = whole.adjusted(mirrored_ ? figure : 0, 0, mirrored_ ? 0 : -figure, 0);
  const double thickness = metrics.height() * 0.55;
  bar.setTop(whole.center().y() - thickness / 2);
  bar.setHeight(thickness);
  PaintBar(painter, bar, value);
}

}  // namespace frostmark
