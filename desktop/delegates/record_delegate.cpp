#include "desktop/delegates/record_delegate.h"

#include <QPainter>

#include "desktop/delegates/row_painter.h"
#include "desktop/widgets/position_badge.h"

namespace frostmark {
namespace {

constexpr int kFields = 9;
constexpr int kName = 0;
constexpr int kPosition = 1;
constexpr int kOverall = 2;

void PaintRecord(QPainter& painter, const QStyleOptionViewItem& option, const QStringList& fields) {
  const double gap = row::Margin(option);
  QRectF rest = QRectF(option.rect).adjusted(gap, 0, -gap, 0);
  QRectF badge(rest.topLeft(), PositionBadgeSize(QFontMetricsF(option.font)));
  badge.moveTop(rest.center().y() - badge.height() / 2);
  PaintPositionBadge(painter, badge, fields[kPosition]);
  rest.setLeft(badge.right() + gap);

  const double column = QFontMetricsF(option.font).horizontalAdvance("000") + gap;
  for (int i = kFields - 1; i >= kOverall; --i) {
    QRectF field = rest;
    field.setLeft(rest.right() - column);
    row::PaintText(painter, field, fields[i],
                   i == kOverall ? row::TextColor(option) : row::QuietColor(option),
                   Qt::AlignRight);
    rest.setRight(field.left());
  }
  row::PaintText(painter, rest, fields[kName], row::TextColor(option));
}

}  // namespace

void RecordDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                           const QModelIndex& index) const {
  QStyleOptionViewItem prepared = option;
  initStyleOption(&prepared, index);
  painter->save();
  row::PaintGround(*painter, prepared);
  const QStringList fields = prepared.text.split(',');
  if (fields.size() == kFields) {
    PaintRecord(*painter, prepared, fields);
  } else {
    row::PaintPlain(*painter, prepared, prepared.text);
  }
  painter->restore();
}

QSize RecordDelegate::sizeHint(const QStyleOptionViewItem& option,
                               const QModelIndex& /*index*/) const {
  return {0, row::Height(option)};
}

}  // namespace frostmark
