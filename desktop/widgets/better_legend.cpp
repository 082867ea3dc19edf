#include "desktop/widgets/better_legend.h"

#include <QFontMetricsF>
#include <QPainter>
#include <cmath>

#include "desktop/painting/palette.h"
#include "desktop/painting/place_mark.h"
#include "desktop/painting/position_badge.h"

namespace frostmark {
namespace {

constexpr const char* kWords = "better than the lead player there";

}  // namespace

BetterLegend::BetterLegend(QWidget* parent) : QWidget(parent) {
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

QSize BetterLegend::sizeHint() const {
  const QFontMetricsF metrics(font());
  return {static_cast<int>(std::ceil(metrics.horizontalAdvance(kWords) + metrics.height() * 1.5)),
          static_cast<int>(std::ceil(PositionBadgeSize(metrics).height() + 4))};
}

void BetterLegend::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  const double line = QFontMetricsF(font()).height();
  const double size = line * 0.75;
  PaintFate(painter, QRectF(1, (height() - size) / 2, size, size), Fate::kGoesUp);
  painter.setPen(QColor(palette::kFrost));
  painter.drawText(QRectF(line * 1.2, 0, width(), height()), Qt::AlignLeft | Qt::AlignVCenter,
                   kWords);
}

}  // namespace frostmark
