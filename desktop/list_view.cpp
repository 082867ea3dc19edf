#include "desktop/list_view.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QScrollBar>
#include <chrono>
#include <utility>

namespace frostmark {

namespace {

// A list that is rebuilt is full again by then; one that fills later is a new one.
constexpr std::chrono::milliseconds kRebuildTime{1000};

// EVENT as if no modifier were held.
QMouseEvent WithoutModifiers(const QMouseEvent& event) {
  return {event.type(),   event.position(), event.scenePosition(), event.globalPosition(),
          event.button(), event.buttons(),  Qt::NoModifier,        event.pointingDevice()};
}

}  // namespace

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

bool ListView::IsChoice(const QMouseEvent& event) const {
  return event.button() == Qt::LeftButton && indexAt(event.position().toPoint()).isValid();
}

// Qt's views answer every button and take Ctrl and Shift for more than one row: here only the plain
// left button on a row chooses, so that the lit row is always the one that the game holds.
void ListView::mousePressEvent(QMouseEvent* event) {
  pressed_on_item_ = IsChoice(*event);
  if (!pressed_on_item_) {
    event->accept();
    return;
  }
  QMouseEvent plain = WithoutModifiers(*event);
  QListView::mousePressEvent(&plain);
}

void ListView::mouseMoveEvent(QMouseEvent* event) {
  if (pressed_on_item_ || event->buttons() == Qt::NoButton) QListView::mouseMoveEvent(event);
}

void ListView::mouseReleaseEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton || !pressed_on_item_) return;
  QMouseEvent plain = WithoutModifiers(*event);
  QListView::mouseReleaseEvent(&plain);
  pressed_on_item_ = false;
  // The row under the mouse may have moved on since the press: what is selected is what was chosen.
  const int row = SelectedRow();
  if (row >= 0) emit Chosen(row);
}

void ListView::mouseDoubleClickEvent(QMouseEvent* event) {
  if (!IsChoice(*event)) {
    event->accept();
    return;
  }
  QMouseEvent plain = WithoutModifiers(*event);
  QListView::mouseDoubleClickEvent(&plain);
  const int row = SelectedRow();
  if (row >= 0) emit Activated(row, false);
}

void ListView::keyPressEvent(QKeyEvent* event) {
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
      if (SelectedRow() < 0 && currentIndex().isValid()) {
        emit Chosen(currentIndex().row());
      } else {
        Walk(*event);
      }
      return;
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
    case Qt::Key_Home:
    case Qt::Key_End:
      Walk(*event);
      return;
    default:
      QListView::keyPressEvent(event);
  }
}

void ListView::Walk(const QKeyEvent& event) {
  const int before = SelectedRow();
  // With Ctrl a view would walk away from the lit row.
  QKeyEvent plain(event.type(), event.key(), Qt::NoModifier);
  QListView::keyPressEvent(&plain);
  // A row that was walked to from nowhere may have been the current one before: then it is unlit.
  const int after = currentIndex().isValid() ? currentIndex().row() : -1;
  if (after >= 0 && after != before) emit Chosen(after);
}

void ListView::reset() {
  const int place = verticalScrollBar()->value();
  QListView::reset();
  if (place == 0) return;
  place_ = place;
  rebuilding_.setRemainingTime(kRebuildTime);
}

void ListView::updateGeometries() {
  QListView::updateGeometries();
  if (place_ == 0) return;
  if (rebuilding_.hasExpired()) {
    place_ = 0;
  } else if (verticalScrollBar()->maximum() >= place_) {
    verticalScrollBar()->setValue(std::exchange(place_, 0));
  }
}

void ListView::wheelEvent(QWheelEvent* event) {
  place_ = 0;
  QListView::wheelEvent(event);
}

}  // namespace frostmark
