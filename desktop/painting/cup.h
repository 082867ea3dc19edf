#pragma once

#include <QColor>
#include <QRectF>

class QPainter;

namespace frostmark {

// Draws a cup, small and flat, in COLOR into RECT.
void PaintCup(QPainter& painter, const QRectF& rect, const QColor& color);

}  // namespace frostmark
