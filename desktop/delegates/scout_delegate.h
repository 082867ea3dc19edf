#pragma once

#include "desktop/delegates/player_delegate.h"

namespace frostmark {

class RecordList;

// Draws players whose records are known, and tells their skills in the tooltip of the row.
class ScoutDelegate : public PlayerDelegate {
  Q_OBJECT

 public:
  // RECORDS holds the records of the rows, in their order.
  ScoutDelegate(const RecordList& records, QObject* parent)
      : PlayerDelegate(parent), records_(records) {}

  bool helpEvent(QHelpEvent* event, QAbstractItemView* view, const QStyleOptionViewItem& option,
                 const QModelIndex& index) override;

 private:
  const RecordList& records_;
};

}  // namespace frostmark
