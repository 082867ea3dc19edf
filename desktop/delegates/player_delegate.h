#pragma once

#include "desktop/delegates/row_delegate.h"

namespace frostmark {

// Draws a player's line as a badge with the position, the name, the overall rating as a bar with
// its number, and the age. See ParsePlayerLine and ParsePoolLine for the forms.
class PlayerDelegate : public RowDelegate {
  Q_OBJECT

 public:
  using RowDelegate::RowDelegate;

 protected:
  bool PaintRow(QPainter& painter, const QStyleOptionViewItem& option,
                const QModelIndex& index) const override;
};

}  // namespace frostmark
