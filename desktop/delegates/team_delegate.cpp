#include "desktop/delegates/team_delegate.h"

#include <QPainter>
#include <array>
#include <utility>

#include "desktop/delegates/row_painter.h"
#include "desktop/delegates/team_columns.h"
#include "desktop/delegates/team_line.h"

namespace frostmark {

namespace {

void PaintTeam(QPainter& painter, const QStyleOptionViewItem& option, const TeamLine& line, int row,
               League league) {
  const TeamColumns columns(option.font);
  QRectF rest = QRectF(option.rect).adjusted(columns.gap, 0, -columns.gap, 0);

  QRectF place = rest;
  place.setWidth(columns.place);
  row::PaintText(painter, place, QString::number(row + 1), row::QuietColor(option));
  QRectF mark(0, 0, columns.mark, columns.mark);
  mark.moveCenter(QPointF(place.right() + columns.gap + columns.mark / 2, rest.center().y()));
  PaintFate(painter, mark, FateOf(league, row));
  rest.setLeft(mark.right() + columns.gap);

  const std::array counts = {line.ties, line.losses, line.wins};
  for (std::size_t i = 0; i < counts.size(); ++i) {
    QRectF count = rest;
    count.setLeft(rest.right() - columns.count);
    const bool wins = i + 1 == counts.size();
    row::PaintText(painter, count, QString::number(counts[i]),
                   wins ? row::TextColor(option) : row::QuietColor(option), Qt::AlignRight);
    rest.setRight(count.left());
  }
  rest.setRight(rest.right() - columns.gap);
  row::PaintText(painter, rest, line.team, row::TextColor(option));
}

}  // namespace

TeamDelegate::TeamDelegate(League league, std::function<QString()> own_team, QObject* parent)
    : QStyledItemDelegate(parent), league_(league), own_team_(std::move(own_team)) {}

void TeamDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                         const QModelIndex& index) const {
  QStyleOptionViewItem prepared = option;
  initStyleOption(&prepared, index);
  painter->save();
  row::PaintGround(*painter, prepared);
  if (const auto line = ParseTeamLine(prepared.text)) {
    if (line->team == own_team_()) {
      row::PaintOwn(*painter, prepared);
      prepared.font.setWeight(QFont::DemiBold);
      painter->setFont(prepared.font);
    }
    PaintTeam(*painter, prepared, *line, index.row(), league_);
  } else {
    row::PaintPlain(*painter, prepared, prepared.text);
  }
  painter->restore();
}

QSize TeamDelegate::sizeHint(const QStyleOptionViewItem& option,
                             const QModelIndex& /*index*/) const {
  return {0, qRound(row::Height(option) * row_stretch_)};
}

}  // namespace frostmark
