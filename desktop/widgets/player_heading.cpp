#include "desktop/widgets/player_heading.h"

#include <QAbstractItemView>
#include <QEvent>
#include <QPainter>

#include "desktop/painting/palette.h"
#include "desktop/painting/player_columns.h"

namespace frostmark {

void PlayerHeading::StandOver(QAbstractItemView& players) {
  players_ = &players;
  players.viewport()->installEventFilter(this);
}

bool PlayerHeading::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::Resize || event->type() == QEvent::Move) update();
  return QWidget::eventFilter(watched, event);
}

QSize PlayerHeading::sizeHint() const {
  return {fontMetrics().height() * 12, qRound(fontMetrics().height() * 1.2)};
}

void PlayerHeading::paintEvent(QPaintEvent* /*event*/) {
  if (players_ == nullptr) return;
  QPainter painter(this);
  painter.setPen(QColor(palette::kFrost));
  const PlayerColumns columns(players_->font());
  const QWidget& rows = *players_->viewport();
  const double start = mapFromGlobal(rows.mapToGlobal(QPoint())).x() + columns.gap;
  const double end = mapFromGlobal(rows.mapToGlobal(QPoint(rows.width(), 0))).x() - columns.gap;
  const auto write = [&](double left, double right, Qt::Alignment side, const char* word) {
    painter.drawText(QRectF(left, 0, right - left, height()),
                     static_cast<int>(side | Qt::AlignVCenter), word);
  };
  write(start, end, Qt::AlignLeft, "Pos");
  write(start + columns.badge.width() + columns.mark + 2 * columns.gap, end, Qt::AlignLeft,
        "Player");
  write(start, end, Qt::AlignRight, "Age");
  const double age = QFontMetricsF(font()).horizontalAdvance("Age");
  write(start, end - age - 1.6 * columns.gap, Qt::AlignRight, "Overall");
}

}  // namespace frostmark
