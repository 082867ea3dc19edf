#pragma once

#include <QPushButton>

namespace frostmark {

// A button that shows an arrow in place of its caption. The caption stays its text.
class ArrowButton : public QPushButton {
  Q_OBJECT
  Q_PROPERTY(bool leftward MEMBER leftward_)

 public:
  using QPushButton::QPushButton;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  bool leftward_ = false;  // else rightward
};

}  // namespace frostmark
