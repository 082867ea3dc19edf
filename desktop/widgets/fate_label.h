#pragma once

#include <QLabel>

#include "desktop/painting/place_mark.h"

namespace frostmark {

// A label with a team's name and what the end of the season brings it: a mark before the name, the
// name in the mark's color. The user's own team stands on a golden ground.
class FateLabel : public QLabel {
  Q_OBJECT

 public:
  explicit FateLabel(QWidget* parent = nullptr) : QLabel(parent) {}

  void SetFate(Fate fate);
  void SetOwn(bool own);
  Fate GetFate() const { return fate_; }

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override { return sizeHint(); }

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  double MarkSize() const;

  Fate fate_ = Fate::kStays;
  bool own_ = false;
};

}  // namespace frostmark
