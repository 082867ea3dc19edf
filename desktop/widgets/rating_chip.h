#pragma once

#include <QLabel>

namespace frostmark {

// A player on the rink: the disc with their rating, in the poster face like the goals. The disc of
// the player with the puck lifts off the ice.
class RatingChip : public QLabel {
  Q_OBJECT

 public:
  explicit RatingChip(QWidget* parent = nullptr) : QLabel(parent) {}

  void SetColor(const QColor& color);
  // Whether they have the puck.
  void SetCarrier(bool carrier);
  bool carrier() const { return carrier_; }

  // How far the disc reaches from the chip's center, in pixels, when it lies on the ice.
  double Radius() const;

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override { return sizeHint(); }

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  QFont PosterFont() const;

  QColor color_ = Qt::gray;
  bool carrier_ = false;
};

}  // namespace frostmark
