#include "desktop/widgets/golden_dot.h"

#include <QPainter>

#include "desktop/painting/palette.h"
#include "desktop/widgets/pin.h"

namespace frostmark {

GoldenDot::GoldenDot(QWidget& button) : QWidget(&button) {
  setAttribute(Qt::WA_TransparentForMouseEvents);
  hide();
  new Pin(*this, Qt::AlignTop | Qt::AlignRight, {0, 5, 5, 0});
}

QSize GoldenDot::sizeHint() const {
  const int size = qRound(fontMetrics().height() * 0.55);
  return {size, size};
}

void GoldenDot::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  painter.setBrush(QColor(palette::kGold));
  painter.drawEllipse(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5));
}

}  // namespace frostmark
