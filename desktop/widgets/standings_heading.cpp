#include "desktop/widgets/standings_heading.h"

#include <QAbstractItemView>
#include <QEvent>
#include <QFontMetricsF>
#include <QPainter>
#include <cmath>

#include "desktop/painting/palette.h"
#include "desktop/painting/team_columns.h"

namespace frostmark {

QSize StandingsHeading::sizeHint() const {
  const TeamColumns columns(font());
  return {static_cast<int>(std::ceil(3 * columns.count + 2 * columns.gap)),
          static_cast<int>(std::ceil(QFontMetricsF(font()).height() * 1.3))};
}

void StandingsHeading::StandOver(QAbstractItemView& standings) {
  standings_ = &standings;
  standings.viewport()->installEventFilter(this);
}

double StandingsHeading::End() const {
  if (standings_ == nullptr) return width();
  const QWidget& rows = *standings_->viewport();
  return mapFromGlobal(rows.mapToGlobal(QPoint(rows.width(), 0))).x();
}

bool StandingsHeading::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::Resize || event->type() == QEvent::Move) update();
  return QWidget::eventFilter(watched, event);
}

void StandingsHeading::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  painter.setPen(QColor(palette::kFrost));
  const TeamColumns columns(font());
  QRectF column(0, 0, columns.count, height());
  column.moveRight(End() - columns.gap);
  for (const char* letter : {"T", "L", "W"}) {
    painter.drawText(column, static_cast<int>(Qt::AlignRight | Qt::AlignVCenter), letter);
    column.translate(-columns.count, 0);
  }
}

}  // namespace frostmark
