#include "desktop/widgets/glow_frame.h"

#include <QPainter>

#include "desktop/painting/palette.h"

namespace frostmark {

void GlowFrame::SetLit(bool lit) {
  if (lit == lit_) return;
  lit_ = lit;
  update();
}

void GlowFrame::paintEvent(QPaintEvent* event) {
  QFrame::paintEvent(event);
  if (!lit_) return;
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setBrush(Qt::NoBrush);
  constexpr int kRings = 5;
  for (int ring = 0; ring < kRings; ++ring) {
    QColor color(palette::kGold);
    color.setAlphaF(ring == kRings - 1 ? 1.0F : 0.08F * static_cast<float>(ring + 1));
    painter.setPen(QPen(color, ring == kRings - 1 ? 2.0 : 1.5));
    const double in = 0.75 + ring;
    painter.drawRoundedRect(QRectF(rect()).adjusted(in, in, -in, -in), 12 - ring, 12 - ring);
  }
}

}  // namespace frostmark
