#include "desktop/delegates/player_delegate.h"

#include <QAbstractItemModel>
#include <QPainter>
#include <algorithm>
#include <cmath>
#include <optional>
#include <utility>

#include "desktop/painting/palette.h"
#include "desktop/painting/place_mark.h"
#include "desktop/painting/player_columns.h"
#include "desktop/painting/position_badge.h"
#include "desktop/painting/rating_painter.h"
#include "desktop/painting/row_painter.h"
#include "desktop/painting/row_text.h"
#include "records/lines/player_line.h"
#include "records/lines/pool_line.h"

namespace frostmark {

namespace {

QFont Bold(QFont font) {
  font.setWeight(QFont::DemiBold);
  return font;
}

std::optional<PlayerLine> ParseAnyPlayer(std::string_view text) {
  auto player = ParsePlayerLine(text);
  return player ? player : ParsePoolLine(text);
}

double WidestName(const QAbstractItemModel& players, const QFont& font) {
  const QFontMetricsF metrics(font);
  double widest = 0;
  for (int i = 0; i < players.rowCount(); ++i) {
    const std::string text = players.index(i, 0).data().toString().toStdString();
    const auto player = ParseAnyPlayer(text);
    if (player) widest = std::max(widest, metrics.horizontalAdvance(Shown(player->name)));
  }
  return std::ceil(widest) + 1;
}

void PaintMark(QPainter& painter, const QStyleOptionViewItem& option, const QRectF& room,
               PlayerDelegate::Mark mark) {
  if (mark == PlayerDelegate::Mark::kBetter) {
    const double size = std::min(room.width(), option.fontMetrics.height() * 0.75);
    QRectF arrow(0, 0, size, size);
    arrow.moveCenter(room.center());
    PaintFate(painter, arrow, Fate::kGoesUp);
  } else if (mark == PlayerDelegate::Mark::kDoubled) {
    painter.setFont(Bold(option.font));
    const bool selected = option.state & QStyle::State_Selected;
    row::PaintText(painter, room, "x2", selected ? row::TextColor(option) : QColor(palette::kGold),
                   Qt::AlignHCenter);
    painter.setFont(option.font);
  }
}

// MARK is nothing in a list whose rows are never marked.
void PaintPlayer(QPainter& painter, const QStyleOptionViewItem& option, const PlayerLine& player,
                 double widest_name, std::optional<PlayerDelegate::Mark> mark) {
  const PlayerColumns columns(option.font);
  QRectF rest = QRectF(option.rect).adjusted(columns.gap, 0, -columns.gap, 0);

  if (!player.position.empty()) {
    QRectF badge(rest.topLeft(), columns.badge);
    badge.moveTop(rest.center().y() - badge.height() / 2);
    PaintPositionBadge(painter, badge, Shown(player.position));
    rest.setLeft(badge.right() + columns.gap);
  }
  if (mark) {
    QRectF room = rest;
    room.setWidth(columns.mark);
    PaintMark(painter, option, room, *mark);
    rest.setLeft(room.right() + columns.gap);
  }

  QRectF age = rest;
  age.setLeft(rest.right() - columns.age);
  row::PaintText(painter, age, Shown(player.age), row::QuietColor(option), Qt::AlignRight);

  QRectF number = rest;
  number.setRight(age.left() - columns.gap);
  number.setLeft(number.right() - columns.number);
  painter.setFont(Bold(option.font));
  row::PaintText(painter, number, Shown(player.overall), row::TextColor(option), Qt::AlignRight);
  painter.setFont(option.font);

  // The bars of a list are all of one length, so that they can be compared: it depends on the room
  // that the row leaves beside an ordinary name or the longest of the list, never on the name in
  // it.
  const int overall = Shown(player.overall).toInt();
  const double room = number.left() - rest.left() - columns.gap * 1.4;
  const double bar_width =
      std::clamp(room - std::max(columns.name, widest_name), 0.0, columns.longest_bar);
  if (bar_width < columns.shortest_bar) {
    // A stump would tell nothing: the number alone does.
    rest.setRight(number.left() - columns.gap * 0.7);
    row::PaintText(painter, rest, Shown(player.name), row::TextColor(option));
    return;
  }
  QRectF bar(0, 0, bar_width, option.fontMetrics.height() * 0.45);
  bar.moveRight(number.left() - columns.gap * 0.7);
  bar.moveTop(rest.center().y() - bar.height() / 2);
  if (!(option.state & QStyle::State_Enabled)) {
    PaintShare(painter, bar, RatingShare(overall), palette::kFaint);
  } else if (option.state & QStyle::State_Selected) {
    // The blues of the bars would be lost on the blue of the selection.
    PaintShare(painter, bar, RatingShare(overall), palette::kIce);
  } else {
    PaintRatingBar(painter, bar, overall);
  }

  rest.setRight(bar.left() - columns.gap * 0.7);
  row::PaintText(painter, rest, Shown(player.name), row::TextColor(option));
}

}  // namespace

void PlayerDelegate::MarkRows(std::function<Mark(int row)> mark_of) {
  mark_of_ = std::move(mark_of);
}

PlayerDelegate::Mark PlayerDelegate::MarkOf(int row) const {
  return mark_of_ ? mark_of_(row) : Mark::kNone;
}

bool PlayerDelegate::PaintRow(QPainter& painter, const QStyleOptionViewItem& option,
                              const QModelIndex& index) const {
  const std::string text = option.text.toStdString();
  const auto player = ParseAnyPlayer(text);
  if (!player) return false;
  PaintPlayer(painter, option, *player, WidestName(*index.model(), option.font),
              mark_of_ ? std::optional(mark_of_(index.row())) : std::nullopt);
  return true;
}

}  // namespace frostmark
