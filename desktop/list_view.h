#pragma once

#include <QListView>

namespace frostmark {

// The view of a list control. It turns clicks and keys into the two things a list of the game
// knows: an item is chosen (click, arrow keys, Space) or activated (double click, Enter). What
// follows may change or empty the list, so both are said when the view is done with the event.
class ListView : public QListView {
  Q_OBJECT

 public:
  explicit ListView(QWidget* parent = nullptr);

  // Shows item ROW as selected, none for -1, without saying that it was chosen.
  void ShowSelected(int row);

  // Gives each row the height that its delegate asks for, instead of one height to all.
  void LetRowsGrow();

 signals:
  void Chosen(int row);
  // BY_KEY: no click came before it.
  void Activated(int row, bool by_key);

 protected:
  void mousePressEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  int SelectedRow() const;

  bool pressed_on_item_ = false;
};

}  // namespace frostmark
