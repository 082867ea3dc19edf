#pragma once

#include "desktop/delegates/row_delegate.h"

namespace frostmark {

// Draws a player of a line that is about to play, "CF - James Smith (85)": badge, name, rating.
class LineupDelegate : public RowDelegate {
  Q_OBJECT

 public:
  using RowDelegate::RowDelegate;

 protected:
  bool PaintRow(QPainter& painter, const QStyleOptionViewItem& option,
                const QModelIndex& index) const override;
};

}  // namespace frostmark
