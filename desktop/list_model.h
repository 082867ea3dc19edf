#pragma once

#include <QAbstractListModel>

#include "records/record_list.h"

namespace frostmark {

// A list of the game as a Qt model. It holds no item: it reads the list itself whenever a view
// asks. The list tells of a change after it has happened, so the number of rows lags behind inside
// a notification, and a row that is not there any more reads as an empty text.
class RecordListModel : public QAbstractListModel, public RecordList::Observer {
  Q_OBJECT

 public:
  explicit RecordListModel(RecordList& list, QObject* parent = nullptr);

  int rowCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;

  void ItemInserted(int index) override;
  void ItemRemoved(int index) override;
  void ItemChanged(int index) override;
  void Cleared() override;
  void SelectionChanged() override;

 signals:
  void SelectionMoved();
  // Items have come, gone or changed.
  void ItemsChanged();

 private:
  RecordList& list_;
  int rows_;
};

}  // namespace frostmark
