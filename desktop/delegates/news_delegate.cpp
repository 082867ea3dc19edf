#include "desktop/delegates/news_delegate.h"

#include <QPainter>
#include <utility>

#include "desktop/delegates/news_line.h"
#include "desktop/delegates/row_painter.h"
#include "desktop/widgets/place_mark.h"

namespace frostmark {

namespace {

double DiscSize(const QStyleOptionViewItem& option) { return option.fontMetrics.height() * 0.6; }

QColor OutcomeColor(const NewsLine& line, const QString& own_team) {
  if (line.verb == NewsLine::Verb::kTied) return FateColor(Fate::kStays);
  return FateColor(line.WonBy(own_team) ? Fate::kGoesUp : Fate::kGoesDown);
}

void PaintNews(QPainter& painter, const QStyleOptionViewItem& option, const NewsLine& line,
               const QString& own_team) {
  const bool own = line.Has(own_team);
  const double margin = row::Margin(option);
  const double size = DiscSize(option);
  QRectF disc(0, 0, size, size);
  disc.moveCenter(
      QPointF(option.rect.left() + margin + size / 2, QRectF(option.rect).center().y()));
  if (own) {
    row::PaintOwn(painter, option);
    painter.setBrush(OutcomeColor(line, own_team));
    painter.drawEllipse(disc.translated(margin * 0.3, 0));
  }
  const QRectF rest = QRectF(option.rect).adjusted(2 * margin + size, 0, -margin, 0);
  const QColor color = own || option.state & QStyle::State_Selected ? row::TextColor(option)
                                                                    : row::QuietColor(option);
  row::PaintRuns(painter, rest,
                 {{line.first, line.WonBy(line.first)},
                  {line.verb_text},
                  {line.second, line.WonBy(line.second)},
                  {" "},
                  {line.score, own}},
                 color);
}

}  // namespace

NewsDelegate::NewsDelegate(std::function<QString()> own_team, QObject* parent)
    : QStyledItemDelegate(parent), own_team_(std::move(own_team)) {}

void NewsDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                         const QModelIndex& index) const {
  QStyleOptionViewItem prepared = option;
  initStyleOption(&prepared, index);
  painter->save();
  row::PaintGround(*painter, prepared);
  if (const auto line = ParseNewsLine(prepared.text)) {
    PaintNews(*painter, prepared, *line, own_team_());
  } else {
    row::PaintPlain(*painter, prepared, prepared.text);
  }
  painter->restore();
}

QSize NewsDelegate::sizeHint(const QStyleOptionViewItem& option,
                             const QModelIndex& /*index*/) const {
  return {0, row::Height(option)};
}

}  // namespace frostmark
