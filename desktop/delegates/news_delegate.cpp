#include "desktop/delegates/news_delegate.h"

#include <QPainter>
#include <utility>

#include "desktop/painting/place_mark.h"
#include "desktop/painting/row_painter.h"
#include "desktop/painting/row_text.h"
#include "records/lines/news_line.h"

namespace frostmark {

namespace {

double DiscSize(const QStyleOptionViewItem& option) { return option.fontMetrics.height() * 0.6; }

QColor OutcomeColor(const NewsLine& news, std::string_view own_team) {
  if (news.outcome == Outcome::kTied) return FateColor(Fate::kStays);
  return FateColor(news.WonBy(own_team) ? Fate::kGoesUp : Fate::kGoesDown);
}

}  // namespace

NewsDelegate::NewsDelegate(std::function<QString()> own_team, QObject* parent)
    : ParagraphDelegate(parent), own_team_(std::move(own_team)) {}

double NewsDelegate::Indent(const QStyleOptionViewItem& option) const {
  return 2 * row::Margin(option) + DiscSize(option);
}

void NewsDelegate::PaintSign(QPainter& painter, const QStyleOptionViewItem& option) const {
  const std::string text = option.text.toStdString();
  const std::string own_team = own_team_().toStdString();
  const auto news = ParseNewsLine(text);
  if (!news || !news->Has(own_team)) return;
  row::PaintOwn(painter, option);
  const double size = DiscSize(option);
  QRectF disc(0, 0, size, size);
  disc.moveCenter(QPointF(option.rect.left() + row::Margin(option) * 1.3 + size / 2,
                          QRectF(option.rect).center().y()));
  painter.setBrush(OutcomeColor(*news, own_team));
  painter.drawEllipse(disc);
}

NewsDelegate::Sentence NewsDelegate::SentenceOf(const QStyleOptionViewItem& option) const {
  const std::string text = option.text.toStdString();
  const auto news = ParseNewsLine(text);
  if (!news) return {};
  const bool own = news->Has(own_team_().toStdString());
  return {{{Shown(news->first), news->WonBy(news->first)},
           {Shown(NewsVerb(news->outcome))},
           {Shown(news->second), news->WonBy(news->second)},
           {" "},
           {Shown(NewsScore(*news)), own}},
          own || option.state & QStyle::State_Selected ? row::TextColor(option)
                                                       : row::QuietColor(option)};
}

}  // namespace frostmark
