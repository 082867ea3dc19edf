#pragma once

#include <QPainterPath>
#include <QTransform>

class QPainter;

namespace frostmark::rink {

// A rink is drawn in feet, from its left boards and its upper boards.
inline constexpr double kLength = 200;
inline constexpr double kWidth = 85;
inline constexpr double kGoalLine = 11;  // from the end boards

// How feet become pixels in a widget of SIZE: the whole rink with its boards, centerd.
QTransform Feet(const QSizeF& size);

// Draws the empty rink: boards, ice, lines, circles, creases, goals. PAINTER is set to feet.
void PaintIce(QPainter& painter);

}  // namespace frostmark::rink
