#include "desktop/delegates/record_delegate.h"

#include <QPainter>

#include "desktop/painting/position_badge.h"
#include "desktop/painting/row_painter.h"
#include "desktop/painting/row_text.h"
#include "records/lines/player_record.h"

namespace frostmark {
namespace {

QString Text(const PlayerFields& fields, Field field) {
  return Shown(fields[static_cast<std::size_t>(field)]);
}

void PaintRecord(QPainter& painter, const QStyleOptionViewItem& option,
                 const PlayerFields& fields) {
  const double gap = row::Margin(option);
  QRectF rest = QRectF(option.rect).adjusted(gap, 0, -gap, 0);
  QRectF badge(rest.topLeft(), PositionBadgeSize(QFontMetricsF(option.font)));
  badge.moveTop(rest.center().y() - badge.height() / 2);
  PaintPositionBadge(painter, badge, Text(fields, Field::kPosition));
  rest.setLeft(badge.right() + gap);

  const double column = QFontMetricsF(option.font).horizontalAdvance("000") + gap;
  for (int i = kFieldCount - 1; i >= static_cast<int>(Field::kOverall); --i) {
    const auto of = static_cast<Field>(i);
    QRectF field = rest;
    field.setLeft(rest.right() - column);
    row::PaintText(painter, field, Text(fields, of),
                   of == Field::kOverall ? row::TextColor(option) : row::QuietColor(option),
                   Qt::AlignRight);
    rest.setRight(field.left());
  }
  row::PaintText(painter, rest, Text(fields, Field::kName), row::TextColor(option));
}

}  // namespace

bool RecordDelegate::PaintRow(QPainter& painter, const QStyleOptionViewItem& option,
                              const QModelIndex& /*index*/) const {
  const std::string text = option.text.toStdString();
  const auto fields = ParsePlayerRecord(text);
  if (!fields) return false;
  PaintRecord(painter, option, *fields);
  return true;
}

}  // namespace frostmark
