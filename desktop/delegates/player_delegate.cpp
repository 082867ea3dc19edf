#include "desktop/delegates/player_delegate.h"

#include <QPainter>
#include <algorithm>
#include <cmath>

#include "desktop/delegates/player_line.h"
#include "desktop/delegates/row_painter.h"
#include "desktop/palette.h"
#include "desktop/widgets/position_badge.h"
#include "desktop/widgets/rating_painter.h"

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
        name(option.fontMetrics.averageCharWidth() * 20.0),
        age(TwoDigits(option.font)),
        shortest_bar(option.fontMetrics.averageCharWidth() * 5.0),
        longest_bar(option.fontMetrics.averageCharWidth() * 16.0) {}

  double gap;
  QSizeF badge;
  double number;
  double name;
  double age;
  double shortest_bar;
  double longest_bar;
};

void PaintPlayer(QPainter& painter, const QStyleOptionViewItem& option, const PlayerLine& player) {
  const Columns columns(option);
  QRectF rest = QRectF(option.rect).adjusted(columns.gap, 0, -columns.gap, 0);

  if (!player.position.isEmpty()) {
    QRectF badge(rest.topLeft(), columns.badge);
    badge.moveTop(rest.center().y() - badge.height() / 2);
    PaintPositionBadge(painter, badge, player.position);
    rest.setLeft(badge.right() + columns.gap);
  }

  QRectF age = rest;
  age.setLeft(rest.right() - columns.age);
  row::PaintText(painter, age, QString::number(player.age), row::QuietColor(option),
                 Qt::AlignRight);

  QRectF number = rest;
  number.setRight(age.left() - columns.gap);
  number.setLeft(number.right() - columns.number);
  painter.setFont(Bold(option.font));
  row::PaintText(painter, number, QString::number(player.overall), row::TextColor(option),
                 Qt::AlignRight);
  painter.setFont(option.font);

  // The bars of a list are all of one length, so that they can be compared: it depends on the room
  // that the row leaves beside an ordinary name, never on the name in it.
  const double room = number.left() - rest.left() - 2 * columns.gap;
  const double bar_width =
      std::clamp(room - columns.name, columns.shortest_bar, columns.longest_bar);
  QRectF bar(0, 0, bar_width, option.fontMetrics.height() * 0.45);
  bar.moveRight(number.left() - columns.gap * 0.7);
  bar.moveTop(rest.center().y() - bar.height() / 2);
  if (option.state & QStyle::State_Selected) {
    // The blues of the bars would be lost on the blue of the selection.
    PaintShare(painter, bar, RatingShare(player.overall), palette::kIce);
  } else {
    PaintRatingBar(painter, bar, player.overall);
  }

  rest.setRight(bar.left() - columns.gap * 0.7);
  row::PaintText(painter, rest, player.name, row::TextColor(option));
}

}  // namespace

void PlayerDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                           const QModelIndex& index) const {
  QStyleOptionViewItem prepared = option;
  initStyleOption(&prepared, index);
  painter->save();
  row::PaintGround(*painter, prepared);
  if (const auto player = ParsePlayerLine(prepared.text)) {
    PaintPlayer(*painter, prepared, *player);
  } else {
    row::PaintPlain(*painter, prepared, prepared.text);
  }
  painter->restore();
}

QSize PlayerDelegate::sizeHint(const QStyleOptionViewItem& option,
                               const QModelIndex& /*index*/) const {
  return {0, qRound(row::Height(option) * row_stretch_)};
}

}  // namespace frostmark
