#include "desktop/widgets/pin.h"

#include <QEvent>
#include <QStyle>
#include <QWidget>

namespace frostmark {

Pin::Pin(QWidget& child, Qt::Alignment where, QMargins inset)
    : QObject(&child), child_(child), where_(where), inset_(inset) {
  child_.installEventFilter(this);
  child_.parentWidget()->installEventFilter(this);
  Place();
}

void Pin::Place() {
  const QRect room = child_.parentWidget()->rect().marginsRemoved(inset_);
  const QSize size =
      child_.sizeHint().expandedTo(child_.minimumSize()).boundedTo(child_.maximumSize());
  child_.setGeometry(QStyle::alignedRect(Qt::LeftToRight, where_, size, room));
  child_.raise();
}

bool Pin::eventFilter(QObject* watched, QEvent* event) {
  switch (event->type()) {
    case QEvent::Resize:
      if (watched == child_.parentWidget()) Place();
      break;
    case QEvent::Show:
    case QEvent::FontChange:
    case QEvent::StyleChange:
      Place();
      break;
    default:
      break;
  }
  return false;
}

}  // namespace frostmark
