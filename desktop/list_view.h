#pragma once

#include <QDeadlineTimer>
#include <QListView>

namespace frostmark {

// The view of a list control. It turns clicks and keys into the two things a list of the game
// knows: an item is chosen (click, arrow keys, Space) or activated (double click, Enter). What
// follows may change or empty the list, so both are said when the view is done with the event.
// The row that is lit is always the one that the list holds as selected.
class ListView : public QListView {
  Q_OBJECT

 public:
  explicit ListView(QWidget* parent = nullptr);

  // Shows item ROW as selected, none for -1, without saying that it was chosen.
  void ShowSelected(int row);

  // Keeps its place for the list that is filled again at once.
  void reset() override;

  // Gives each row the height that its delegate asks for, instead of one height to all.
  void LetRowsGrow();

 signals:
  void Chosen(int row);
  // BY_KEY: no click came before it.
  void Activated(int row, bool by_key);

 protected:
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;
  void updateGeometries() override;

 private:
  int SelectedRow() const;
  // Goes where EVENT, a key that walks through the list, leads.
  void Walk(const QKeyEvent& event);
  // Whether EVENT is what chooses a row.
  bool IsChoice(const QMouseEvent& event) const;

  bool pressed_on_item_ = false;
  int place_ = 0;  // where a list that is being rebuilt was scrolled to, 0 for none
  QDeadlineTimer rebuilding_;
};

}  // namespace frostmark
