#include "desktop/delegates/news_delegate.h"

#include <QAbstractItemView>
#include <QPainter>
#include <algorithm>
#include <cmath>
#include <utility>

#include "desktop/painting/news_painter.h"
#include "desktop/painting/palette.h"
#include "desktop/painting/row_painter.h"
#include "records/leagues.h"

namespace frostmark {

namespace {

constexpr int kGamesInWeek = kRankCount * kTeamsInLeague / 2;
constexpr double kLowestRow = 1.12;  // in lines of text
constexpr double kHead = 0.95;
constexpr double kHeadLetters = 0.8;

int HeadHeight(const QStyleOptionViewItem& option) {
  return qRound(option.fontMetrics.height() * kHead);
}

int LowestRow(const QStyleOptionViewItem& option) {
  return static_cast<int>(std::ceil(option.fontMetrics.height() * kLowestRow));
}

int RowHeight(const QStyleOptionViewItem& option) {
  const auto* view = qobject_cast<const QAbstractItemView*>(option.widget);
  if (view == nullptr) return row::Height(option);
  const int room = view->viewport()->height() - kRankCount * HeadHeight(option);
  return std::clamp(room / kGamesInWeek, LowestRow(option), row::Height(option));
}

}  // namespace

NewsDelegate::NewsDelegate(std::function<QString()> own_team, QObject* parent)
    : RowDelegate(parent), own_team_(std::move(own_team)) {}

void NewsDelegate::NameLeagues(std::function<QString(const NewsLine&)> league_of) {
  league_of_ = std::move(league_of);
}

QString NewsDelegate::HeadOf(const QModelIndex& index) const {
  if (!league_of_) return {};
  const auto league = [this](const QModelIndex& row) {
    const std::string text = row.data().toString().toStdString();
    const auto news = ParseNewsLine(text);
    return news ? league_of_(*news) : QString();
  };
  const QString own = league(index);
  return index.row() > 0 && own == league(index.siblingAtRow(index.row() - 1)) ? QString() : own;
}

QSize NewsDelegate::sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const {
  return {0, RowHeight(option) + (HeadOf(index).isEmpty() ? 0 : HeadHeight(option))};
}

void NewsDelegate::PaintHead(QPainter& painter, QStyleOptionViewItem& option,
                             const QModelIndex& index) const {
  const QString league = HeadOf(index);
  if (league.isEmpty()) return;
  QRectF head = option.rect;
  head.setHeight(HeadHeight(option));
  option.rect.setTop(option.rect.top() + HeadHeight(option));
  QFont small = option.font;
  small.setPixelSize(qRound(QFontInfo(small).pixelSize() * kHeadLetters));
  small.setWeight(QFont::DemiBold);
  painter.setFont(small);
  head.adjust(row::Margin(option), 0, -row::Margin(option), 0);
  row::PaintText(painter, head, league, QColor(palette::kFrost));
  const double from = head.left() + QFontMetricsF(small).horizontalAdvance(league) + 8;
  painter.setPen(QPen(QColor(palette::kEdge), 1));
  painter.drawLine(QPointF(from, head.center().y()), QPointF(head.right(), head.center().y()));
  painter.setFont(option.font);
}

bool NewsDelegate::PaintRow(QPainter& painter, const QStyleOptionViewItem& option,
                            const QModelIndex& /*index*/) const {
  const std::string text = option.text.toStdString();
  const auto news = ParseNewsLine(text);
  if (!news) return false;
  const auto own = FortuneOf(*news, own_team_().toStdString());
  if (own) row::PaintOwn(painter, option);
  PaintNews(painter, option.rect, *news, own, row::TextColor(option),
            own ? row::TextColor(option) : row::QuietColor(option));
  return true;
}

}  // namespace frostmark
