#include "desktop/widgets/column_heading.h"

#include <QAbstractItemView>
#include <QEvent>
#include <QPainter>
#include <QRegularExpression>
#include <QStyle>
#include <algorithm>

#include "desktop/painting/row_painter.h"

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

void ColumnHeading::StandOver(const QList<QAbstractItemView*>& lists) {
  lists_ = lists;
  for (QAbstractItemView* list : lists_) list->viewport()->installEventFilter(this);
}

double ColumnHeading::Start(int index) const {
  if (index < lists_.size()) {
    const QWidget& rows = *lists_[index]->viewport();
    return mapFromGlobal(rows.mapToGlobal(QPoint())).x() + row::Margin(rows.fontMetrics());
  }
  const auto columns = static_cast<double>(std::max<qsizetype>(1, Words().size()));
  const QRect area = contentsRect();
  const double width = (area.width() - column_gap_ * (columns - 1)) / columns;
  return area.left() + index * (width + column_gap_);
}

bool ColumnHeading::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::Resize || event->type() == QEvent::Move) update();
  return QLabel::eventFilter(watched, event);
}

void ColumnHeading::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  painter.setPen(
      palette().color(isEnabled() ? QPalette::Active : QPalette::Disabled, foregroundRole()));
  const QStringList words = Words();
  const QRect area = contentsRect();
  if (words.isEmpty()) return;
  for (int i = 0; i < words.size(); ++i) {
    const double start = Start(i);
    const double end = i + 1 < words.size() ? Start(i + 1) - column_gap_ : area.right() + 1;
    const QRectF column(start, area.top(), end - start, area.height());
    painter.drawText(column, static_cast<int>(alignment() | Qt::AlignVCenter), words[i]);
  }
}

}  // namespace frostmark
