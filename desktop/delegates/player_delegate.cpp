#include "desktop/delegates/player_delegate.h"

#include <QAbstractItemModel>
#include <QPainter>
#include <algorithm>
#include <cmath>

#include "desktop/painting/palette.h"
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

// The room for any number of two digits: the digits of a face need not be equally wide.
double TwoDigits(const QFont& font) {
  const QFontMetricsF metrics(font);
  double widest = 0;
  for (char digit = '0'; digit <= '9'; ++digit) {
    widest = std::max(widest, metrics.horizontalAdvance(QLatin1Char(digit)));
  }
  return std::ceil(2 * widest) + 1;
}

// The columns of a row, from the font alone.
struct Columns {
  explicit Columns(const QStyleOptionViewItem& option)
      : gap(row::Margin(option)),
        badge(PositionBadgeSize(QFontMetricsF(option.font))),
        number(TwoDigits(Bold(option.font))),
        name(option.fontMetrics.averageCharWidth() * 18.0),
        age(TwoDigits(option.font)),
        shortest_bar(option.fontMetrics.averageCharWidth() * 3.0),
        longest_bar(option.fontMetrics.averageCharWidth() * 16.0) {}

  double gap;
  QSizeF badge;
  double number;
  double name;
  double age;
  double shortest_bar;
  double longest_bar;
};

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

void PaintPlayer(QPainter& painter, const QStyleOptionViewItem& option, const PlayerLine& player,
                 double widest_name) {
  const Columns columns(option);
  QRectF rest = QRectF(option.rect).adjusted(columns.gap, 0, -columns.gap, 0);

  if (!player.position.empty()) {
    QRectF badge(rest.topLeft(), columns.badge);
    badge.moveTop(rest.center().y() - badge.height() / 2);
    PaintPositionBadge(painter, badge, Shown(player.position));
    rest.setLeft(badge.right() + columns.gap);
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

bool PlayerDelegate::PaintRow(QPainter& painter, const QStyleOptionViewItem& option,
                              const QModelIndex& index) const {
  const std::string text = option.text.toStdString();
  const auto player = ParseAnyPlayer(text);
  if (!player) return false;
  PaintPlayer(painter, option, *player, WidestName(*index.model(), option.font));
  return true;
}

}  // namespace frostmark
