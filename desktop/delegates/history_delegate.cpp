#include "desktop/delegates/history_delegate.h"

#include <QPainter>
#include <utility>

#include "desktop/delegates/history_line.h"
#include "desktop/delegates/row_painter.h"
#include "desktop/palette.h"
#include "desktop/widgets/place_mark.h"

namespace frostmark {

namespace {

using Event = HistoryLine::Event;

double SignSize(const QStyleOptionViewItem& option) { return option.fontMetrics.height() * 0.95; }

QColor SignColor(Event event) {
  switch (event) {
    case Event::kAdded:
      return FateColor(Fate::kGoesUp);
    case Event::kReleased:
      return FateColor(Fate::kGoesDown);
    case Event::kRetired:
      break;
  }
  return FateColor(Fate::kChampion);
}

// A plus for a player taken, a minus for one let go, a flag for one who retired.
void PaintSign(QPainter& painter, const QRectF& rect, Event event) {
  painter.setPen(Qt::NoPen);
  painter.setBrush(SignColor(event));
  painter.drawEllipse(rect);
  QPen pen(QColor(palette::kDeep), rect.height() * 0.14);
  pen.setCapStyle(Qt::RoundCap);
  painter.setPen(pen);
  const QPointF center = rect.center();
  const double arm = rect.width() * 0.24;
  if (event == Event::kRetired) {
    const QPointF foot = center + QPointF(-arm * 0.7, arm * 1.1);
    painter.drawLine(foot, center + QPointF(-arm * 0.7, -arm));
    painter.setPen(Qt::NoPen);
    painter.setBrush(pen.color());
    painter.drawRect(QRectF(center + QPointF(-arm * 0.7, -arm), QSizeF(arm * 1.9, arm * 1.1)));
    return;
  }
  painter.drawLine(center - QPointF(arm, 0), center + QPointF(arm, 0));
  if (event == Event::kAdded) painter.drawLine(center - QPointF(0, arm), center + QPointF(0, arm));
}

void PaintHistory(QPainter& painter, const QStyleOptionViewItem& option, const HistoryLine& line,
                  bool own) {
  if (own) row::PaintOwn(painter, option);
  const double margin = row::Margin(option);
  const double size = SignSize(option);
  QRectF sign(0, 0, size, size);
  sign.moveCenter(
      QPointF(option.rect.left() + margin * 1.3 + size / 2, QRectF(option.rect).center().y()));
  PaintSign(painter, sign, line.event);

  QRectF rest = QRectF(option.rect).adjusted(0, 0, -margin, 0);
  rest.setLeft(sign.right() + margin);
  const QColor color = own || option.state & QStyle::State_Selected ? row::TextColor(option)
                                                                    : row::QuietColor(option);
  row::PaintRuns(painter, rest,
                 {{line.before},
                  {line.team_first ? line.team : line.player, true},
                  {line.between},
                  {line.team_first ? line.player : line.team, true},
                  {line.after}},
                 color);
}

}  // namespace

HistoryDelegate::HistoryDelegate(std::function<QString()> own_team, QObject* parent)
    : QStyledItemDelegate(parent), own_team_(std::move(own_team)) {}

void HistoryDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                            const QModelIndex& index) const {
  QStyleOptionViewItem prepared = option;
  initStyleOption(&prepared, index);
  painter->save();
  row::PaintGround(*painter, prepared);
  if (const auto line = ParseHistoryLine(prepared.text)) {
    PaintHistory(*painter, prepared, *line, line->team == own_team_());
  } else {
    row::PaintPlain(*painter, prepared, prepared.text);
  }
  painter->restore();
}

QSize HistoryDelegate::sizeHint(const QStyleOptionViewItem& option,
                                const QModelIndex& /*index*/) const {
  return {0, row::Height(option)};
}

}  // namespace frostmark
