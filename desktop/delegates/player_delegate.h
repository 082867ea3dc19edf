#pragma once

#include "desktop/delegates/row_delegate.h"

namespace frostmark {

// Draws a player: position badge, name, bar of the Overall with its figure, age.
class PlayerDelegate : public RowDelegate {
  Q_OBJECT

 public:
  using RowDelegate::RowDelegate;

 protected:
  void PaintRow(QPainter& painter, const QRect& bounds, const QString& text,
                const QStyleOptionViewItem& option) const override;
};

}  // namespace frostmark
