#pragma once

#include <QColor>
#include <QRectF>

class QPainter;

namespace frostmark {

// Where a league stands on the ladder: from its top nobody goes up, from its bottom nobody down.
enum class League { kTop, kMiddle, kBottom };

// What the end of the season brings to a place of a table.
enum class Fate { kStays, kChampion, kGoesUp, kGoesDown };

// The fate of the place ROW, from 0, of a table of six.
Fate FateOf(League league, int row);

QColor FateColor(Fate fate);

// Draws the mark of FATE into RECT: an arrow up or down, the champion's star, nothing for a team
// that stays.
void PaintFate(QPainter& painter, const QRectF& rect, Fate fate);

}  // namespace frostmark
