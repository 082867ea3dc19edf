#include "desktop/list_access.h"

#include <QPointer>

#include "desktop/list_view.h"

namespace frostmark {
namespace {

QString ActivateAction() { return QStringLiteral("Activate"); }

// One row of a list. It is invalid once its row has gone.
class RowAccess : public QAccessibleInterface, public QAccessibleActionInterface {
 public:
  RowAccess(ListView& view, const QPersistentModelIndex& index) : view_(&view), index_(index) {}

  int Row() const { return index_.row(); }

  bool isValid() const override { return !view_.isNull() && index_.isValid(); }
  QObject* object() const override { return nullptr; }
  QWindow* window() const override { return parent()->window(); }
  QAccessibleInterface* parent() const override {
    return QAccessible::queryAccessibleInterface(view_);
  }
  QAccessibleInterface* child(int /*index*/) const override { return nullptr; }
  QAccessibleInterface* childAt(int /*x*/, int /*y*/) const override { return nullptr; }
  int childCount() const override { return 0; }
  int indexOfChild(const QAccessibleInterface* /*child*/) const override { return -1; }

  QAccessible::Role role() const override { return QAccessible::ListItem; }
  void setText(QAccessible::Text /*kind*/, const QString& /*text*/) override {}
  QString text(QAccessible::Text kind) const override {
    return kind == QAccessible::Name && isValid() ? index_.data().toString() : QString();
  }

  QRect rect() const override {
    const QRect row = view_->visualRect(index_);
    return {view_->viewport()->mapToGlobal(row.topLeft()), row.size()};
  }

  QAccessible::State state() const override {
    QAccessible::State state;
    if (!isValid()) {
      state.invalid = true;
      return state;
    }
    state.selectable = true;
    state.focusable = true;
    state.selected = view_->selectionModel()->isSelected(index_);
    state.focused = view_->hasFocus() && view_->currentIndex() == index_;
    state.disabled = !view_->isEnabled();
    state.invisible = !view_->isVisible();
    state.offscreen = !view_->viewport()->rect().intersects(view_->visualRect(index_));
    return state;
  }

  void* interface_cast(QAccessible::InterfaceType type) override {
    if (type != QAccessible::ActionInterface) return nullptr;
    return static_cast<QAccessibleActionInterface*>(this);
  }

  QStringList actionNames() const override { return {pressAction(), ActivateAction()}; }
  QString localizedActionDescription(const QString& action) const override {
    return action == pressAction() ? QStringLiteral("Chooses the row")
                                   : QStringLiteral("Does what a double click does");
  }
  QStringList keyBindingsForAction(const QString& action) const override {
    return action == pressAction() ? QStringList{"Space"} : QStringList{"Return"};
  }

  // Done in the next turn of the event loop: what follows may ask the user something, and whoever
  // acts waits for the end of this call.
  void doAction(const QString& action) override {
    if (!isValid()) return;
    const bool activates = action == ActivateAction();
    if (!activates && action != pressAction()) return;
    QMetaObject::invokeMethod(
        view_,
        [view = view_, index = index_, activates] {
          if (!index.isValid() || !view->isEnabled()) return;
          if (activates) {
            emit view->Activated(index.row(), true);
          } else {
            emit view->Chosen(index.row());
          }
        },
        Qt::QueuedConnection);
  }

 private:
  QPointer<ListView> view_;
  QPersistentModelIndex index_;
};

}  // namespace

ListAccess::ListAccess(ListView& view) : QAccessibleWidget(&view, QAccessible::List), view_(view) {}

ListAccess::~ListAccess() {
  for (const QAccessible::Id row : rows_) QAccessible::deleteAccessibleInterface(row);
}

void ListAccess::ForgetGoneRows() const {
  for (auto row = rows_.begin(); row != rows_.end();) {
    if (row.key().isValid()) {
      ++row;
    } else {
      QAccessible::deleteAccessibleInterface(row.value());
      row = rows_.erase(row);
    }
  }
}

int ListAccess::childCount() const {
  return view_.model() == nullptr ? 0 : view_.model()->rowCount();
}

QAccessibleInterface* ListAccess::child(int row) const {
  if (row < 0 || row >= childCount()) return nullptr;
  const QPersistentModelIndex index(view_.model()->index(row, 0));
  const auto known = rows_.constFind(index);
  if (known != rows_.constEnd()) return QAccessible::accessibleInterface(*known);
  if (rows_.size() / 2 > childCount()) ForgetGoneRows();
  auto* made = new RowAccess(view_, index);
  rows_.insert(index, QAccessible::registerAccessibleInterface(made));
  return made;
}

QAccessibleInterface* ListAccess::childAt(int x, int y) const {
  return child(view_.indexAt(view_.viewport()->mapFromGlobal(QPoint(x, y))).row());
}

int ListAccess::indexOfChild(const QAccessibleInterface* child) const {
  const auto* row = dynamic_cast<const RowAccess*>(child);
  return row == nullptr ? -1 : row->Row();
}

QAccessibleInterface* ListAccess::focusChild() const {
  return view_.hasFocus() ? child(view_.currentIndex().row()) : nullptr;
}

}  // namespace frostmark
