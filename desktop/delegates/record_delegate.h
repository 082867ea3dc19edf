#pragma once

#include "desktop/delegates/row_delegate.h"

namespace frostmark {

// Draws a whole player record with its nine fields in columns.
class RecordDelegate : public RowDelegate {
  Q_OBJECT

 public:
  using RowDelegate::RowDelegate;

 protected:
  bool PaintRow(QPainter& painter, const QStyleOptionViewItem& option,
                const QModelIndex& index) const override;
};

}  // namespace frostmark
