#pragma once

#include <QWidget>

namespace frostmark {

// Lies over the place of the next opponent when there is none: the season is over. It covers its
// parent from the left edge of FROM on.
class SeasonOver : public QWidget {
  Q_OBJECT

 public:
  SeasonOver(QWidget& card, QWidget& from);

  bool eventFilter(QObject* watched, QEvent* event) override;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  void Place();

  QWidget& from_;
};

}  // namespace frostmark
