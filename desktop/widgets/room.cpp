#include "desktop/widgets/room.h"

#include <QFontMetricsF>
#include <QStyleOptionViewItem>
#include <QWidget>
#include <QtMath>

#include "desktop/painting/row_painter.h"

namespace frostmark {

void GiveRoom(QWidget& list, int columns, int rows) {
  list.ensurePolished();  // the font of the style sheet comes with it
  QStyleOptionViewItem option;
  option.initFrom(&list);
  const int frame = option.fontMetrics.height() / 2;
  // Unrounded: half a pixel a letter is a lot over a whole line of small ones.
  const double letter = QFontMetricsF(option.font).averageCharWidth();
  list.setMinimumSize(qCeil(columns * letter) + 2 * frame, rows * row::Height(option) + frame);
}

}  // namespace frostmark
