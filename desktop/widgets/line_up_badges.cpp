#include "desktop/widgets/line_up_badges.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QStringList>
#include <cmath>

#include "desktop/painting/palette.h"
#include "desktop/painting/position_badge.h"

namespace frostmark {
namespace {

QFont Bold(QFont font) {
  font.setWeight(QFont::DemiBold);
  return font;
}

}  // namespace

LineUpBadges::LineUpBadges(QWidget* parent) : QWidget(parent) {
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

void LineUpBadges::SetCounts(const Counts& counts) {
  counts_ = counts;
  QStringList words;
  for (std::size_t i = 0; i < counts_.size(); ++i) {
    const QString count = counts_[i] == 0 ? "missing" : QString::number(counts_[i]);
    words += QStringLiteral("%1 %2").arg(kRosterOrder[i], count);
  }
  setAccessibleName("Positions on the lead line: " + words.join(", "));
  update();
}

double LineUpBadges::CellWidth() const {
  return PositionBadgeSize(QFontMetricsF(font())).width() +
         QFontMetricsF(Bold(font())).horizontalAdvance("x2") + fontMetrics().height() * 0.7;
}

QSize LineUpBadges::sizeHint() const {
  return {static_cast<int>(std::ceil(CellWidth() * kPositionCount)),
          static_cast<int>(std::ceil(PositionBadgeSize(QFontMetricsF(font())).height() + 4))};
}

void LineUpBadges::PaintPosition(QPainter& painter, const QRectF& cell, const QString& position,
                                 int count) const {
  QRectF badge(cell.topLeft(), PositionBadgeSize(QFontMetricsF(font())));
  badge.moveTop(cell.center().y() - badge.height() / 2);
  QRectF beside = cell;
  beside.setLeft(badge.right() + fontMetrics().height() * 0.2);
  painter.setFont(font());
  if (count > 0) {
    PaintPositionBadge(painter, badge, position);
  } else {
    painter.setPen(QPen(QColor(palette::kRedBright), 1.4, Qt::DashLine));
    painter.setBrush(Qt::NoBrush);
    const double radius = badge.height() * 0.28;
    painter.drawRoundedRect(badge.adjusted(1, 1, -1, -1), radius, radius);
    painter.drawText(badge, Qt::AlignCenter, position);
  }
  if (count == 1) return;
  painter.setFont(Bold(font()));
  painter.setPen(QColor(count == 0 ? palette::kRedBright : palette::kGold));
  painter.drawText(beside, Qt::AlignLeft | Qt::AlignVCenter,
                   count == 0 ? QStringLiteral("!") : QStringLiteral("x%1").arg(count));
}

void LineUpBadges::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  QRectF cell(1, 0, CellWidth(), height());
  for (std::size_t i = 0; i < counts_.size(); ++i) {
    PaintPosition(painter, cell, kRosterOrder[i], counts_[i]);
    cell.translate(CellWidth(), 0);
  }
}

}  // namespace frostmark
