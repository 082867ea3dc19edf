#pragma once

#include <QWidget>

namespace frostmark {

// A small dot in the corner of a button: something waits to be done there. The click goes to the
// button.
class GoldenDot : public QWidget {
  Q_OBJECT

 public:
  explicit GoldenDot(QWidget& button);

  QSize sizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;
};

}  // namespace frostmark
