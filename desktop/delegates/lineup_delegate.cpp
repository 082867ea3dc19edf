#include "desktop/delegates/lineup_delegate.h"

#include <QPainter>
#include <algorithm>

#include "desktop/painting/position_badge.h"
#include "desktop/painting/rating_painter.h"
#include "desktop/painting/row_painter.h"
#include "desktop/painting/row_text.h"
#include "records/lines/player_line.h"

namespace frostmark {
namespace {

void PaintPlayer(QPainter& painter, const QStyleOptionViewItem& option, const QString& position,
                 const QString& name, const QString& overall) {
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
  row::PaintText(painter, number, overall, row::TextColor(option), Qt::AlignRight);
  painter.setFont(option.font);

  // What a long name leaves.
  const double room =
      number.left() - rest.left() - QFontMetricsF(option.font).horizontalAdvance(name);
  QRectF bar(0, 0, std::clamp(room - 3 * gap, 0.0, rest.width() * 0.3),
             option.fontMetrics.height() * 0.45);
  bar.moveRight(number.left() - gap);
  bar.moveTop(rest.center().y() - bar.height() / 2);
  PaintRatingBar(painter, bar, overall.toInt());
  rest.setRight(bar.left() - gap);
  row::PaintText(painter, rest, name, row::TextColor(option));
}

}  // namespace

bool LineupDelegate::PaintRow(QPainter& painter, const QStyleOptionViewItem& option,
                              const QModelIndex& /*index*/) const {
  const std::string text = option.text.toStdString();
  const auto player = ParsePlayerLine(text);
  if (!player || !player->age.empty()) return false;
  PaintPlayer(painter, option, Shown(player->position), Shown(player->name),
              Shown(player->overall));
  return true;
}

}  // namespace frostmark
