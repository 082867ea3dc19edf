#include "desktop/widgets/room.h"

#include <QEvent>
#include <QFontMetricsF>
#include <QObject>
#include <QStyleOptionViewItem>
#include <QWidget>
#include <QtMath>

#include "desktop/painting/row_painter.h"

namespace frostmark {

namespace {

class RoomGiver : public QObject {
 public:
  RoomGiver(QWidget& list, int columns, int rows)
      : QObject(&list), list_(list), columns_(columns), rows_(rows) {
    list.ensurePolished();  // the font of the style sheet comes with it
    list.installEventFilter(this);
    Measure();
  }

  bool eventFilter(QObject* /*watched*/, QEvent* event) override {
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) Measure();
    return false;
  }

 private:
  void Measure() {
    QStyleOptionViewItem option;
    option.initFrom(&list_);
    const int frame = option.fontMetrics.height() / 2;
    // Unrounded: half a pixel a letter is a lot over a whole line of small ones.
    const double letter = QFontMetricsF(option.font).averageCharWidth();
    list_.setMinimumSize(qCeil(columns_ * letter) + 2 * frame, rows_ * row::Height(option) + frame);
  }

  QWidget& list_;
  int columns_;
  int rows_;
};

}  // namespace

void GiveRoom(QWidget& list, int columns, int rows) { new RoomGiver(list, columns, rows); }

}  // namespace frostmark
