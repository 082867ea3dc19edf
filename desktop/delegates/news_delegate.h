#pragma once

#include <functional>

#include "desktop/delegates/row_delegate.h"
#include "records/lines/news_line.h"

namespace frostmark {

// Draws a line of the season's news as a result: the two teams with the score between them. A game
// of the user's own stands out, with a disc that tells whether it was won, lost or tied. Games of
// one league that follow each other stand under its name. The rows are as high as the list lets the
// games of a week be without scrolling, so they are not uniform.
class NewsDelegate : public RowDelegate {
  Q_OBJECT

 public:
  // OWN_TEAM is asked at every painting.
  NewsDelegate(std::function<QString()> own_team, QObject* parent);

  // Has LEAGUE_OF asked for the name of the league of a game. Until then no league is named.
  void NameLeagues(std::function<QString(const NewsLine&)> league_of);

  // The league whose name stands over the row of INDEX; empty where it goes on from the row before.
  QString HeadOf(const QModelIndex& index) const;

  QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;

 protected:
  void PaintHead(QPainter& painter, QStyleOptionViewItem& option,
                 const QModelIndex& index) const override;
  bool PaintRow(QPainter& painter, const QStyleOptionViewItem& option,
                const QModelIndex& index) const override;

 private:
  std::function<QString()> own_team_;
  std::function<QString(const NewsLine&)> league_of_;
};

}  // namespace frostmark
