#pragma once

#include <QColor>
#include <QFontMetricsF>
#include <QRectF>
#include <QString>

class QPainter;

namespace frostmark {

// The color of a position: ice for the goalie, blue for the backs, red for the forwards, as the
// rink and its lines. Gray for anything that is not a position.
QColor PositionColor(const QString& position);

// The room that a badge needs in a font; the same for all positions, so that names stand in line.
QSizeF PositionBadgeSize(const QFontMetricsF& metrics);

// Draws the badge of POSITION, its two letters on its color, into RECT in the painter's font.
void PaintPositionBadge(QPainter& painter, const QRectF& rect, const QString& position);

}  // namespace frostmark
