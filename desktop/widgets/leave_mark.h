#pragma once

#include <QAbstractButton>

namespace frostmark {

// The small sign in the corner of a screen without a title bar that leaves the program. It belongs
// to the window and not to the game, so that it works whatever the game is doing.
class LeaveMark : public QAbstractButton {
  Q_OBJECT

 public:
  explicit LeaveMark(QWidget* parent);

  QSize sizeHint() const override;

 protected:
  void enterEvent(QEnterEvent* event) override;
  void leaveEvent(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
};

}  // namespace frostmark
