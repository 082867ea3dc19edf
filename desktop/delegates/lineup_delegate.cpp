#include "desktop/delegates/lineup_delegate.h"

#include <QPainter>
#include <QRegularExpression>

#include "desktop/delegates/row_painter.h"
#include "desktop/widgets/position_badge.h"
#include "desktop/widgets/rating_painter.h"

namespace frostmark {
namespace {

void PaintPlayer(QPainter& painter, const QStyleOptionViewItem& option, const QString& position,
                 const QString& name, int overall) {
  const double gap = row::Margin(option);
  QRectF rest = QRectF(option.rect).adjusted(gap, 0, -gap, 0);
  QRectF badge(rest.topLeft(), PositionBadgeSize(QFontMetricsF(option.font)));
  badge.moveTop(rest.center().y() - badge.height() / 2);
  PaintPositionBadge(painter, badge, position);
  rest.setLeft(badge.right() + gap);

  QFont bold = option.font;
  bold.setBold(true);
  painter.setFont(bold);
  QRectF number = rest;
  number.setLeft(rest.right() - QFontMetricsF(bold).horizontalAdvance("999"));
  row::PaintText(painter, number, QString::number(overall), row::TextColor(option), Qt::AlignRight);
  painter.setFont(option.font);

  QRectF bar(0, 0, rest.width() * 0.3, option.fontMetrics.height() * 0.45);
  bar.moveRight(number.left() - gap);
  bar.moveTop(rest.center().y() - bar.height() / 2);
  PaintRatingBar(painter, bar, overall);
  rest.setRight(bar.left() - gap);
  row::PaintText(painter, rest, name, row::TextColor(option));
}

}  // namespace

void LineupDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                           const QModelIndex& index) const {
  static const QRegularExpression kForm(QStringLiteral(R"(^([A-Z]{2}) - (.*) \((\d{1,3})\)$)"));
  QStyleOptionViewItem prepared = option;
  initStyleOption(&prepared, index);
  painter->save();
  row::PaintGround(*painter, prepared);
  if (const auto player = kForm.match(prepared.text); player.hasMatch()) {
    PaintPlayer(*painter, prepared, player.captured(1), player.captured(2),
                player.captured(3).toInt());
  } else {
    row::PaintPlain(*painter, prepared, prepared.text);
  }
  painter->restore();
}

QSize LineupDelegate::sizeHint(const QStyleOptionViewItem& option,
                               const QModelIndex& /*index*/) const {
  return {0, row::Height(option) * 3 / 2};
}

}  // namespace frostmark
