#pragma once

#include <QColor>
#include <QRectF>

class QPainter;

namespace frostmark {

// The one look of a rating wherever a number is drawn as a bar.
//
// Players move between the sixties and 99, so a bar that started at 0 would show them all alike: it
// starts at kBarStart, and a lower rating is an empty bar.
inline constexpr int kBarStart = 40;
inline constexpr int kBarEnd = 99;

// The color of a rating: four steps from dull blue to ice white.
QColor RatingColor(int rating);

// How much of its bar RATING fills, 0 to 1.
double RatingShare(int rating);

// Draws a bar into RECT of which SHARE, 0 to 1, is filled with COLOR: from its left end or, where
// two teams face each other, from its right end.
void PaintShare(QPainter& painter, const QRectF& rect, double share, const QColor& color,
                bool from_right = false);

// Draws the bar of RATING.
void PaintRatingBar(QPainter& painter, const QRectF& rect, int rating, bool from_right = false);

}  // namespace frostmark
