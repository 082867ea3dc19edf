#pragma once

#include <QWidget>
#include <vector>

#include "desktop/painting/place_mark.h"

namespace frostmark {

// Says what the marks of the standings mean, on one line.
class StandingsLegend : public QWidget {
  Q_OBJECT

 public:
  explicit StandingsLegend(QWidget* parent = nullptr) : QWidget(parent) {}

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override { return sizeHint(); }

 protected:
  void paintEvent(QPaintEvent* event) override;
};

}  // namespace frostmark
