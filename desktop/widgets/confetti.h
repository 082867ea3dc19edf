#pragma once

#include <QTimer>
#include <QVariantAnimation>
#include <QWidget>

namespace frostmark {

// Confetti over a card, for a moment of joy. Where motion is not wanted it hangs still as long. It
// takes no mouse and leaves nothing behind, no work either.
class Confetti : public QWidget {
  Q_OBJECT

 public:
  // Lies over all of CARD, whose size it follows.
  explicit Confetti(QWidget& card);

  void Throw();

  // Whether some of it is in the air.
  bool InTheAir() const { return stay_.isActive(); }
  // Whether it moves.
  bool Moves() const { return fall_.state() == QAbstractAnimation::Running; }

 protected:
  void paintEvent(QPaintEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  QVariantAnimation fall_;
  double time_ = 0;  // 0 to 1
  QTimer stay_;
};

}  // namespace frostmark
