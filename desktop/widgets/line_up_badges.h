#pragma once

#include <QWidget>
#include <array>

#include "records/leagues.h"

namespace frostmark {

// The six positions of a lead line: filled, missing (dashed, in red, with a "!"), or played by more
// than one ("x2").
class LineUpBadges : public QWidget {
  Q_OBJECT

 public:
  // How many play each position, in the order of a roster.
  using Counts = std::array<int, kPositionCount>;

  explicit LineUpBadges(QWidget* parent = nullptr);

  void SetCounts(const Counts& counts);
  const Counts& Shown() const { return counts_; }

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override { return sizeHint(); }

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  double CellWidth() const;
  void PaintPosition(QPainter& painter, const QRectF& cell, const QString& position,
                     int count) const;

  Counts counts_{};
};

}  // namespace frostmark
