#include "desktop/widgets/leave_mark.h"

#include <QPainter>

#include "desktop/painting/palette.h"

namespace frostmark {
namespace {

constexpr double kSize = 1.5;  // in lines of text

// The sign of a power switch: a cross would be taken for the one that leaves a single screen.
void DrawSwitch(QPainter& painter, const QRectF& area) {
  const QPointF center = area.center();
  const double r = area.width() * 0.24;
  constexpr int kGap = 40;  // degrees to each side of the stroke
  painter.drawArc(QRectF(center.x() - r, center.y() - r, 2 * r, 2 * r), (90 + kGap) * 16,
                  (360 - 2 * kGap) * 16);
  painter.drawLine(center - QPointF(0, r * 1.25), center - QPointF(0, r * 0.25));
}

}  // namespace

LeaveMark::LeaveMark(QWidget* parent) : QAbstractButton(parent) {
  setObjectName("look_leave");
  setProperty("role", "mark");
  setAccessibleName(tr("Leave Frostmark"));
  setToolTip(tr("Leave Frostmark (Ctrl+Q)"));
  setFocusPolicy(Qt::TabFocus);
}

QSize LeaveMark::sizeHint() const {
  const int side = qRound(fontMetrics().height() * kSize);
  return {side, side};
}

void LeaveMark::enterEvent(QEnterEvent* event) {
  QAbstractButton::enterEvent(event);
  update();
}

void LeaveMark::leaveEvent(QEvent* event) {
  QAbstractButton::leaveEvent(event);
  update();
}

void LeaveMark::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  const QRectF area = QRectF(rect()).adjusted(1, 1, -1, -1);
  if (underMouse()) {
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(palette::kRed));
    painter.drawEllipse(area);
  } else if (hasFocus()) {
    painter.setPen(QPen(QColor(palette::kBlueBright), 2));
    painter.drawEllipse(area);
  }
  painter.setBrush(Qt::NoBrush);
  painter.setPen(QPen(underMouse() ? QColor(Qt::white) : QColor(palette::kFrost),
                      area.width() * 0.075, Qt::SolidLine, Qt::RoundCap));
  DrawSwitch(painter, area);
}

}  // namespace frostmark
