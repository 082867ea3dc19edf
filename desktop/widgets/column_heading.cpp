#include "desktop/widgets/column_heading.h"

#include <QPainter>
#include <QRegularExpression>
#include <QStyle>

namespace frostmark {

QStringList ColumnHeading::Words() const {
  static const QRegularExpression kGap(QStringLiteral(" {2,}"));
  return text().split(kGap, Qt::SkipEmptyParts);
}

QSize ColumnHeading::sizeHint() const {
  const QStringList words = Words();
  int widest = 0;
  for (const QString& word : words) {
    widest = std::max(widest, fontMetrics().horizontalAdvance(word));
  }
  const int gap = fontMetrics().averageCharWidth() * 2;
  const QMargins around = contentsMargins();
  return {(widest + gap) * static_cast<int>(words.size()) + around.left() + around.right(),
          fontMetrics().height() + around.top() + around.bottom()};
}

void ColumnHeading::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  painter.setPen(
      palette().color(isEnabled() ? QPalette::Active : QPalette::Disabled, foregroundRole()));
  const QStringList words = Words();
  const QRect area = contentsRect();
  if (words.isEmpty()) return;
  const auto columns = static_cast<double>(words.size());
  const double width = (area.width() - column_gap_ * (columns - 1)) / columns;
  for (int i = 0; i < words.size(); ++i) {
    const QRectF column(area.left() + i * (width + column_gap_), area.top(), width, area.height());
    painter.drawText(column, static_cast<int>(alignment() | Qt::AlignVCenter), words[i]);
  }
}

}  // namespace frostmark
