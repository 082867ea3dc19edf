#pragma once

#include <QStyledItemDelegate>

namespace frostmark {

// Draws a player of a line that is about to play, "CF - James Smith (85)": badge, name, rating.
class LineupDelegate : public QStyledItemDelegate {
  Q_OBJECT

 public:
  using QStyledItemDelegate::QStyledItemDelegate;

  void paint(QPainter* painter, const QStyleOptionViewItem& option,
             const QModelIndex& index) const override;
  QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;
};

}  // namespace frostmark
