#pragma once

#include <QColor>
#include <QString>
#include <QTimer>
#include <QVariantAnimation>
#include <QWidget>

namespace frostmark {

// What a banner over the ice says.
struct Banner {
  QString headline;
  QString detail;
  QString team;  // whose crest hangs in front, none for ""
  QColor ground;
  QColor letters;
};

// A banner across the rink it is laid over: a goal that sweeps in and goes again, or the plate with
// the result, which stays. It takes no mouse.
class IceBanner : public QWidget {
  Q_OBJECT

 public:
  // Lies over all of PARENT, whose size it follows.
  explicit IceBanner(QWidget& parent);

  // Shows BANNER for a moment, coming in from the left, or from the right if FROM_RIGHT.
  void Sweep(const Banner& banner, bool from_right);
  // Shows BANNER until the next call.
  void Hang(const Banner& banner);
  void Clear();

  // What is on view; no headline while nothing is.
  const Banner& Shown() const { return banner_; }

 protected:
  void paintEvent(QPaintEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void Show(const Banner& banner);
  QRectF Band() const;

  Banner banner_;
  QVariantAnimation slide_;  // 0 is outside, 1 in its place
  double place_ = 1;
  bool from_right_ = false;
  QTimer stay_;
};

}  // namespace frostmark
