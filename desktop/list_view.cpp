#include "desktop/list_view.h"

#include <QKeyEvent>
#include <QMouseEvent>

namespace frostmark {

ListView::ListView(QWidget* parent) : QListView(parent) {
  setEditTriggers(NoEditTriggers);
  setSelectionMode(SingleSelection);
  // One size for all rows: a list of 32767 items is laid out without asking each for its size.
  setUniformItemSizes(true);
  setVerticalScrollMode(ScrollPerPixel);
  setMouseTracking(true);
}

void ListView::LetRowsGrow() {
  setUniformItemSizes(false);
  setResizeMode(Adjust);  // a row's height follows from the width of the list
}

void ListView::ShowSelected(int row) {
  if (row == SelectedRow()) return;
  if (row < 0) {
    selectionModel()->clear();
  } else {
    setCurrentIndex(model()->index(row, 0));
  }
}

int ListView::SelectedRow() const {
  const QModelIndexList rows = selectionModel()->selectedRows();
  return rows.isEmpty() ? -1 : rows.front().row();
}

void ListView::mousePressEvent(QMouseEvent* event) {
  QListView::mousePressEvent(event);
  pressed_on_item_ =
      event->button() == Qt::LeftButton && indexAt(event->position().toPoint()).isValid();
}

void ListView::mouseReleaseEvent(QMouseEvent* event) {
  QListView::mouseReleaseEvent(event);
  if (event->button() != Qt::LeftButton || !pressed_on_item_) return;
  pressed_on_item_ = false;
  // The row under the mouse may have moved on since the press: what is selected is what was chosen.
  const int row = SelectedRow();
  if (row >= 0) emit Chosen(row);
}

void ListView::mouseDoubleClickEvent(QMouseEvent* event) {
  QListView::mouseDoubleClickEvent(event);
  const int row = SelectedRow();
  const bool on_item = indexAt(event->position().toPoint()).isValid();
  if (event->button() == Qt::LeftButton && on_item && row >= 0) emit Activated(row, false);
}

void ListView::keyPressEvent(QKeyEvent* event) {
  const int before = SelectedRow();
  switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
      if (currentIndex().isValid()) emit Activated(currentIndex().row(), true);
      return;
    case Qt::Key_Space:
      if (currentIndex().isValid()) emit Chosen(currentIndex().row());
      return;
    case Qt::Key_Up:
    case Qt::Key_Down:
      // The first arrow in a list without a selection chooses the row that it stands on.
      if (before < 0 && currentIndex().isValid()) {
        emit Chosen(currentIndex().row());
        return;
      }
      break;
    default:
      break;
  }
  QListView::keyPressEvent(event);
  const int after = SelectedRow();
  if (after >= 0 && after != before) emit Chosen(after);
}

}  // namespace frostmark
