#pragma once

#include <QWidget>

namespace frostmark {

// Says what the arrow at a player in training means. As high as the badges of a line-up.
class BetterLegend : public QWidget {
  Q_OBJECT

 public:
  explicit BetterLegend(QWidget* parent = nullptr);

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override { return sizeHint(); }

 protected:
  void paintEvent(QPaintEvent* event) override;
};

}  // namespace frostmark
