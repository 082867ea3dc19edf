#include "desktop/widgets/room.h"

#include <QStyleOptionViewItem>
#include <QWidget>

#include "desktop/delegates/row_painter.h"

namespace frostmark {

void GiveRoom(QWidget& list, int columns, int rows) {
  list.ensurePolished();  // the font of the style sheet comes with it
  QStyleOptionViewItem option;
  option.initFrom(&list);
  const int frame = option.fontMetrics.height() / 2;
  list.setMinimumSize(columns * option.fontMetrics.averageCharWidth() + 2 * frame,
                      rows * row::Height(option) + frame);
}

}  // namespace frostmark
