#pragma once

#include <QStyledItemDelegate>
#include <functional>

namespace frostmark {

// Draws a line of the draft's history behind a sign for what happened: a player retired, was let go
// or was taken. The lines of the user's own team stand out.
class HistoryDelegate : public QStyledItemDelegate {
  Q_OBJECT

 public:
  // OWN_TEAM is asked at every painting.
  HistoryDelegate(std::function<QString()> own_team, QObject* parent);

  void paint(QPainter* painter, const QStyleOptionViewItem& option,
             const QModelIndex& index) const override;
  QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;

 private:
  std::function<QString()> own_team_;
};

}  // namespace frostmark
