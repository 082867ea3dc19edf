#pragma once

#include <QWidget>

namespace frostmark {

// The letters over the columns of a league's standings: wins, losses, ties.
class StandingsHeading : public QWidget {
  Q_OBJECT

 public:
  explicit StandingsHeading(QWidget* parent = nullptr) : QWidget(parent) {}

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override { return sizeHint(); }

 protected:
  void paintEvent(QPaintEvent* event) override;
};

}  // namespace frostmark
