#pragma once

#include <QTimer>
#include <QWidget>
#include <vector>

namespace frostmark {

// Crystals of ice that drift through the light over a picture, past the widgets that stand on it.
// Nothing of it is drawn with the first frame, and it moves only while its window is the active one
// and motion is wanted.
class FrostDrift : public QWidget {
  Q_OBJECT

 public:
  // Lies over all of PICTURE, under its other children, and follows its size.
  explicit FrostDrift(QWidget& picture);

  bool Moves() const { return tick_.isActive(); }
  // Where the crystals are.
  const std::vector<QPointF>& Places() const { return places_; }

 protected:
  void paintEvent(QPaintEvent* event) override;
  bool event(QEvent* event) override;
  void showEvent(QShowEvent* event) override;
  void hideEvent(QHideEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  // Starts or stops, as the window is.
  void Follow();
  void Tick();
  // All but what the other widgets cover.
  QRegion Open() const;
  QRect Around(std::size_t crystal) const;

  QTimer start_;
  QTimer tick_;
  std::vector<QPointF> places_;
  double time_ = 0;  // seconds in motion
  int ticks_left_ = 0;
};

}  // namespace frostmark
