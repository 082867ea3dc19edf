#include "desktop/widgets/fate_label.h"

#include <QFontMetricsF>
#include <QPainter>
#include <cmath>

#include "desktop/painting/palette.h"

namespace frostmark {

void FateLabel::SetFate(Fate fate) {
  fate_ = fate;
  update();
}

void FateLabel::SetOwn(bool own) {
  own_ = own;
  update();
}

double FateLabel::MarkSize() const { return QFontMetricsF(font()).height() * 0.6; }

QSize FateLabel::sizeHint() const {
  const QFontMetricsF metrics(font());
  const double space = MarkSize() * 0.7;
  return {static_cast<int>(
              std::ceil(MarkSize() + 3 * space + metrics.horizontalAdvance(text() + "  "))),
          static_cast<int>(std::ceil(metrics.height() * 1.3))};
}

void FateLabel::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  const double space = MarkSize() * 0.7;
  const QRectF whole = contentsRect();
  if (own_) {
    QColor ground(palette::kGold);
    ground.setAlphaF(0.18F);
    painter.setPen(QPen(QColor(palette::kGold), 1));
    painter.setBrush(ground);
    painter.drawRoundedRect(whole.adjusted(0.5, 0.5, -0.5, -0.5), 6, 6);
  }
  QRectF mark(0, 0, MarkSize(), MarkSize());
  mark.moveCenter(QPointF(whole.left() + space + MarkSize() / 2, whole.center().y()));
  PaintFate(painter, mark, fate_);
  painter.setPen(fate_ == Fate::kStays ? QColor(palette::kIce) : FateColor(fate_));
  painter.drawText(whole.adjusted(mark.right() + space, 0, -space, 0),
                   static_cast<int>(Qt::AlignVCenter | Qt::AlignLeft) | Qt::TextSingleLine, text());
}

}  // namespace frostmark
