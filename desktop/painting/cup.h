#pragma once

#include <QColor>
#include <QRectF>

class QPainter;

namespace frostmark {

// Draws a cup, small and flat, in COLOUR into RECT.
void PaintCup(QPainter& painter, const QRectF& rect, const QColor& colour);

}  // namespace frostmark
