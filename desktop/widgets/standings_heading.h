#pragma once

#include <QWidget>

class QAbstractItemView;

namespace frostmark {

// The letters over the columns of a league's standings: wins, losses, ties.
class StandingsHeading : public QWidget {
  Q_OBJECT

 public:
  explicit StandingsHeading(QWidget* parent = nullptr) : QWidget(parent) {}

  // Sets the letters over the columns of STANDINGS, a list in the same window.
  void StandOver(QAbstractItemView& standings);

  // Where the columns end, from the left end of the heading.
  double End() const;

  bool eventFilter(QObject* watched, QEvent* event) override;
  QSize sizeHint() const override;
  QSize minimumSizeHint() const override { return sizeHint(); }

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  QAbstractItemView* standings_ = nullptr;
};

}  // namespace frostmark
