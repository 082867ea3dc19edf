#pragma once

#include <QLabel>

namespace frostmark {

// A player on the rink: the disc with his rating, in the poster face like the goals.
class RatingChip : public QLabel {
  Q_OBJECT

 public:
  explicit RatingChip(QWidget* parent = nullptr) : QLabel(parent) {}

  void SetColour(const QColor& colour);
  // Whether he has the puck.
  void SetCarrier(bool carrier);

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override { return sizeHint(); }

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  QFont PosterFont() const;

  QColor colour_ = Qt::gray;
  bool carrier_ = false;
};

}  // namespace frostmark
