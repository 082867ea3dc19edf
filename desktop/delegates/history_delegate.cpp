#include "desktop/delegates/history_delegate.h"

#include <QPainter>
#include <utility>

#include "desktop/painting/palette.h"
#include "desktop/painting/place_mark.h"
#include "desktop/painting/row_painter.h"
#include "desktop/painting/row_text.h"
#include "records/lines/history_line.h"

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

// TEXT with two of its parts bold, FIRST before SECOND.
std::vector<row::Run> Runs(std::string_view text, std::string_view first, std::string_view second) {
  const auto start = [&](std::string_view part) {
    return static_cast<std::size_t>(part.data() - text.data());
  };
  const std::size_t first_end = start(first) + first.size();
  return {{Shown(text.substr(0, start(first)))},
          {Shown(first), true},
          {Shown(text.substr(first_end, start(second) - first_end))},
          {Shown(second), true},
          {Shown(text.substr(start(second) + second.size()))}};
}

// A plus for a player taken, a minus for one let go, a flag for one who retired.
void PaintEvent(QPainter& painter, const QRectF& rect, Event event) {
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

}  // namespace

HistoryDelegate::HistoryDelegate(std::function<QString()> own_team, QObject* parent)
    : ParagraphDelegate(parent), own_team_(std::move(own_team)) {}

double HistoryDelegate::Indent(const QStyleOptionViewItem& option) const {
  return row::Margin(option) * 2.3 + SignSize(option);
}

void HistoryDelegate::PaintSign(QPainter& painter, const QStyleOptionViewItem& option) const {
  const std::string text = option.text.toStdString();
  const auto line = ParseHistoryLine(text);
  if (!line) return;
  if (Shown(line->team) == own_team_()) row::PaintOwn(painter, option);
  const double size = SignSize(option);
  QRectF sign(0, 0, size, size);
  sign.moveCenter(QPointF(option.rect.left() + row::Margin(option) * 1.3 + size / 2,
                          QRectF(option.rect).center().y()));
  PaintEvent(painter, sign, line->event);
}

HistoryDelegate::Sentence HistoryDelegate::SentenceOf(const QStyleOptionViewItem& option) const {
  const std::string text = option.text.toStdString();
  const auto line = ParseHistoryLine(text);
  if (!line) return {};
  const bool loud = option.state & QStyle::State_Selected || Shown(line->team) == own_team_();
  const bool team_first = line->team.data() < line->player.data();
  return {
      Runs(text, team_first ? line->team : line->player, team_first ? line->player : line->team),
      loud ? row::TextColor(option) : row::QuietColor(option)};
}

}  // namespace frostmark
