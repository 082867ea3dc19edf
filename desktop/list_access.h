#pragma once

#include <QAccessibleWidget>
#include <QHash>
#include <QPersistentModelIndex>

namespace frostmark {

class ListView;

// A list to a screen reader: its rows with their texts, each of which can be chosen ("Press") and
// activated ("Activate"), as by a click and a double click.
class ListAccess : public QAccessibleWidget {
 public:
  explicit ListAccess(ListView& view);
  ~ListAccess() override;

  int childCount() const override;
  QAccessibleInterface* child(int row) const override;
  QAccessibleInterface* childAt(int x, int y) const override;
  int indexOfChild(const QAccessibleInterface* child) const override;
  QAccessibleInterface* focusChild() const override;

 private:
  void ForgetGoneRows() const;

  ListView& view_;
  // The rows that somebody has asked for. A row stays the same one when others come before it.
  mutable QHash<QPersistentModelIndex, QAccessible::Id> rows_;
};

}  // namespace frostmark
