#pragma once

#include "desktop/delegates/row_delegate.h"

namespace frostmark {

// Draws a team's name with a small crest in front of it.
class TeamNameDelegate : public RowDelegate {
  Q_OBJECT

 public:
  using RowDelegate::RowDelegate;

 protected:
  bool PaintRow(QPainter& painter, const QStyleOptionViewItem& option,
                const QModelIndex& index) const override;
};

}  // namespace frostmark
