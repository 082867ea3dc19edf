#include "desktop/list_model.h"

namespace frostmark {

RecordListModel::RecordListModel(RecordList& list, QObject* parent)
    : QAbstractListModel(parent), list_(list), rows_(list.ListCount()) {
  list_.SetObserver(this);
}

int RecordListModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : rows_;
}

QVariant RecordListModel::data(const QModelIndex& index, int role) const {
  if (!index.isValid()) return {};
  if (role != Qt::DisplayRole && role != Qt::AccessibleTextRole) return {};
  return QString::fromStdString(list_.List(index.row()));
}

void RecordListModel::ItemInserted(int index) {
  beginInsertRows({}, index, index);
  ++rows_;
  endInsertRows();
  emit ItemsChanged();
}

void RecordListModel::ItemRemoved(int index) {
  beginRemoveRows({}, index, index);
  --rows_;
  endRemoveRows();
  emit SelectionMoved();
  emit ItemsChanged();
}

void RecordListModel::ItemChanged(int index) {
  const QModelIndex changed = this->index(index);
  emit dataChanged(changed, changed);
  emit ItemsChanged();
}

void RecordListModel::Cleared() {
  beginResetModel();
  rows_ = 0;
  endResetModel();
  emit SelectionMoved();
  emit ItemsChanged();
}

void RecordListModel::SelectionChanged() { emit SelectionMoved(); }

}  // namespace frostmark
