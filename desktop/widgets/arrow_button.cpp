#include "desktop/widgets/arrow_button.h"

#include <QPainterPath>
#include <QStyleOptionButton>
#include <QStylePainter>

namespace frostmark {

void ArrowButton::paintEvent(QPaintEvent* /*event*/) {
  QStylePainter painter(this);
  QStyleOptionButton option;
  initStyleOption(&option);
  option.text.clear();
  painter.drawControl(QStyle::CE_PushButton, option);

  const double reach = fontMetrics().height() * 0.5;
  QPainterPath arrow(QPointF(-reach, 0));
  arrow.lineTo(reach, 0);
  arrow.moveTo(reach * 0.2, -reach * 0.75);
  arrow.lineTo(reach, 0);
  arrow.lineTo(reach * 0.2, reach * 0.75);
  QPen pen(palette().color(foregroundRole()), reach * 0.28);
  pen.setCapStyle(Qt::RoundCap);
  pen.setJoinStyle(Qt::RoundJoin);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(pen);
  painter.translate(QRectF(rect()).center());
  if (leftward_) painter.rotate(180);
  painter.drawPath(arrow);
}

}  // namespace frostmark
