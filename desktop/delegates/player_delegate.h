#pragma once

#include <functional>

#include "desktop/delegates/row_delegate.h"

namespace frostmark {

// Draws a player's line as a badge with the position, the name, the overall rating as a bar with
// its number, and the age. See ParsePlayerLine and ParsePoolLine for the forms.
class PlayerDelegate : public RowDelegate {
  Q_OBJECT

 public:
  // Why a row stands out.
  enum class Mark {
    kNone,
    kDoubled,  // another plays the same position
    kBetter,   // than the one who plays the position
  };

  using RowDelegate::RowDelegate;

  // Has MARK_OF asked at every painting, and a column kept for its answers.
  void MarkRows(std::function<Mark(int row)> mark_of);
  Mark MarkOf(int row) const;

 protected:
  bool PaintRow(QPainter& painter, const QStyleOptionViewItem& option,
                const QModelIndex& index) const override;

 private:
  std::function<Mark(int row)> mark_of_;
};

}  // namespace frostmark
