#pragma once

#include <QStyledItemDelegate>
#include <functional>

namespace frostmark {

// Draws a line of the season's news with the winner's name bold. A game of the user's own stands
// out, with a disc that tells whether it was won, lost or tied.
class NewsDelegate : public QStyledItemDelegate {
  Q_OBJECT

 public:
  // OWN_TEAM is asked at every painting.
  NewsDelegate(std::function<QString()> own_team, QObject* parent);

  void paint(QPainter* painter, const QStyleOptionViewItem& option,
             const QModelIndex& index) const override;
  QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;

 private:
  std::function<QString()> own_team_;
};

}  // namespace frostmark
