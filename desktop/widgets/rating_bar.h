#pragma once

#include <QLabel>

namespace frostmark {

// A label that shows a rating: a bar of it and its figure beside the bar. A text that is not a
// number is shown without a bar.
//
// Mirrored, the figure stands at the left and the bar grows from its right end, so that two teams
// can face each other. A bar of scale "age" measures years instead of a rating.
class RatingBar : public QLabel {
  Q_OBJECT
  Q_PROPERTY(bool mirrored MEMBER mirrored_)
  Q_PROPERTY(QString scale MEMBER scale_)

 public:
  explicit RatingBar(QWidget* parent = nullptr);

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override { return sizeHint(); }

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  QFont FigureFont() const;
  void PaintBar(QPainter& painter, const QRectF& rect, int value) const;

  bool mirrored_ = false;
  QString scale_;
};

}  // namespace frostmark
