#include "desktop/delegates/team_delegate.h"

#include <QPainter>
#include <array>
#include <utility>

#include "desktop/painting/row_painter.h"
#include "desktop/painting/row_text.h"
#include "desktop/painting/team_columns.h"
#include "records/lines/standings_line.h"

namespace frostmark {

namespace {

void PaintTeam(QPainter& painter, const QStyleOptionViewItem& option, const StandingsLine& line,
               int row, Fate fate, const QFont& plain) {
  const TeamColumns columns(plain);
  QRectF rest = QRectF(option.rect).adjusted(columns.gap, 0, -columns.gap, 0);

  QRectF place = rest;
  place.setWidth(columns.place);
  row::PaintText(painter, place, QString::number(row + 1), row::QuietColor(option));
  QRectF mark(0, 0, columns.mark, columns.mark);
  mark.moveCenter(QPointF(place.right() + columns.gap + columns.mark / 2, rest.center().y()));
  PaintFate(painter, mark, fate);
  rest.setLeft(mark.right() + columns.gap);

  const std::array counts = {line.ties, line.losses, line.wins};
  for (std::size_t i = 0; i < counts.size(); ++i) {
    QRectF count = rest;
    count.setLeft(rest.right() - columns.count);
    const bool wins = i + 1 == counts.size();
    row::PaintText(painter, count, Shown(counts[i]),
                   wins ? row::TextColor(option) : row::QuietColor(option), Qt::AlignRight);
    rest.setRight(count.left());
  }
  rest.setRight(rest.right() - columns.gap);
  row::PaintText(painter, rest, Shown(line.team), row::TextColor(option));
}

}  // namespace

TeamDelegate::TeamDelegate(std::function<Fate(int place)> fate_of,
                           std::function<QString()> own_team, QObject* parent)
    : RowDelegate(parent), fate_of_(std::move(fate_of)), own_team_(std::move(own_team)) {}

bool TeamDelegate::PaintRow(QPainter& painter, const QStyleOptionViewItem& option,
                            const QModelIndex& index) const {
  const std::string text = option.text.toStdString();
  const auto line = ParseStandingsLine(text);
  if (!line) return false;
  QStyleOptionViewItem dressed = option;
  if (Shown(line->team) == own_team_()) {
    row::PaintOwn(painter, option);
    dressed.font.setWeight(QFont::DemiBold);
    painter.setFont(dressed.font);
  }
  PaintTeam(painter, dressed, *line, index.row(), fate_of_(index.row()), option.font);
  return true;
}

}  // namespace frostmark
