#pragma once

#include <QColor>
#include <QRectF>
#include <QString>

class QPainter;

namespace frostmark {

// Draws the crest of a team into RECT: a shield with the first letters of its name on it. Every
// name gets a pattern of its own, COLOUR says which side it plays on. Without a name the shield is
// empty.
void PaintCrest(QPainter& painter, const QRectF& rect, const QString& team, const QColor& colour);

}  // namespace frostmark
