#pragma once

#include <QLabel>

namespace frostmark {

// A label that shows a rating: its figure, and a bar of it beside or under the figure. A text that
// is no number is shown without a bar.
class RatingBar : public QLabel {
  Q_OBJECT

 public:
  explicit RatingBar(QWidget* parent = nullptr);

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;
};

}  // namespace frostmark
