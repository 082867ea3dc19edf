#pragma once

#include <QStyledItemDelegate>

namespace frostmark {

// Draws a player's line as a badge with his position, his name, his overall rating as a bar with
// its number, and his age. The list's text stays as it is: see ParsePlayerLine for the forms.
class PlayerDelegate : public QStyledItemDelegate {
  Q_OBJECT

 public:
  using QStyledItemDelegate::QStyledItemDelegate;

  // Makes the rows TIMES as high as those of other lists.
  void StretchRows(double times) { row_stretch_ = times; }

  void paint(QPainter* painter, const QStyleOptionViewItem& option,
             const QModelIndex& index) const override;
  QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;

 private:
  double row_stretch_ = 1;
};

}  // namespace frostmark
