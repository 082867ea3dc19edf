#pragma once

#include <QLabel>
#include <QStringList>

namespace frostmark {

// A label whose text is one of a fixed row of steps ("Week 1" to "Week 10"). It shows the text and,
// below it, a mark for every step: those done, the one it stands at, those to come. A mark bears
// the last word of its step. Where there is a text for "finished", a cup is the last mark.
class ProgressMarks : public QLabel {
  Q_OBJECT
  Q_PROPERTY(QStringList steps MEMBER steps_)
  Q_PROPERTY(QString finished MEMBER finished_)

 public:
  explicit ProgressMarks(QWidget* parent = nullptr) : QLabel(parent) {}

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override { return sizeHint(); }

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  double MarkSize() const;
  QFont MarkFont() const;
  // The step that the text names; past the last one when it is the text for "finished", -1 when
  // it is neither.
  int CurrentStep() const;
  int MarkCount() const;
  void PaintMark(QPainter& painter, const QRectF& rect, int step, int current) const;

  QStringList steps_;
  QString finished_;
};

}  // namespace frostmark
