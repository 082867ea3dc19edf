#include "desktop/widgets/progress_marks.h"

#include <QFontMetricsF>
#include <QPainter>
#include <cmath>

#include "desktop/painting/cup.h"
#include "desktop/painting/palette.h"

namespace frostmark {

namespace {

constexpr double kGap = 0.28;  // between two marks, in marks

}  // namespace

QFont ProgressMarks::MarkFont() const {
  QFont font = QWidget::font();
  const double shrink = 0.62;
  if (font.pixelSize() > 0) {
    font.setPixelSize(qRound(font.pixelSize() * shrink));
  } else {
    font.setPointSizeF(font.pointSizeF() * shrink);
  }
  font.setWeight(QFont::DemiBold);
  return font;
}

double ProgressMarks::MarkSize() const {
  const QFontMetricsF metrics(MarkFont());
  return std::ceil(std::max(metrics.horizontalAdvance("10"), metrics.height()) * 1.35);
}

QSize ProgressMarks::sizeHint() const {
  const QFontMetrics metrics(font());
  const double size = MarkSize();
  const double count = MarkCount();
  const double marks = count * size + (count - 1) * size * kGap + 4;
  return {static_cast<int>(
              std::ceil(std::max(marks, static_cast<double>(metrics.horizontalAdvance(text()))))),
          static_cast<int>(std::ceil(metrics.height() * 1.15 + size + 4))};
}

int ProgressMarks::MarkCount() const {
  return static_cast<int>(steps_.size()) + (finished_.isEmpty() ? 0 : 1);
}

int ProgressMarks::CurrentStep() const {
  if (!finished_.isEmpty() && text() == finished_) return static_cast<int>(steps_.size());
  return static_cast<int>(steps_.indexOf(text()));
}

void ProgressMarks::PaintMark(QPainter& painter, const QRectF& rect, int step, int current) const {
  const bool done = step < current;
  const bool here = step == current;
  painter.setPen(QPen(QColor(here   ? palette::kIce
                             : done ? palette::kBlue
                                    : palette::kEdge),
                      rect.width() * (here ? 0.09 : 0.06)));
  painter.setBrush(here   ? QColor(palette::kRed)
                   : done ? QColor(palette::kBlue).darker(170)
                          : QColor(palette::kDeep));
  painter.drawEllipse(rect.adjusted(1, 1, -1, -1));
  painter.setPen(QColor(here || done ? palette::kIce : palette::kFaint));
  if (step < steps_.size()) {
    painter.drawText(rect, Qt::AlignCenter, steps_[step].section(' ', -1));
  } else {
    const double inset = rect.width() * 0.24;
    PaintCup(painter, rect.adjusted(inset, inset, -inset, -inset),
             here ? palette::kIce : palette::kGold);
  }
}

void ProgressMarks::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  const double size = MarkSize();
  const QRectF whole = contentsRect();
  painter.setPen(palette().color(foregroundRole()));
  painter.drawText(whole.adjusted(0, 0, 0, -size - 2),
                   static_cast<int>(Qt::AlignVCenter | Qt::AlignLeft) | Qt::TextSingleLine, text());

  painter.setFont(MarkFont());
  const int current = CurrentStep();
  QRectF mark(whole.left(), whole.bottom() - size - 1, size, size);
  for (int step = 0; step < MarkCount(); ++step) {
    PaintMark(painter, mark, step, current);
    mark.translate(size * (1 + kGap), 0);
  }
}

}  // namespace frostmark
