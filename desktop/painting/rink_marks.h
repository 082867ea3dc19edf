#pragma once

#include <QColor>
#include <QPointF>

class QPainter;

// What moves on the rink. Every painter is set to feet.
namespace frostmark::rink {

inline constexpr double kPuck = 1.9;  // its radius; a true one could not be seen

// In the goal that SCORING_TEAM (1 home, 2 visitor) shoots at.
QPointF GoalOf(int scoring_team);

void PaintPuck(QPainter& painter, const QPointF& at);
// The way that the puck has come, fading towards FROM.
void PaintWay(QPainter& painter, const QPointF& from, const QPointF& to);
// A shot of TEAM.
void PaintShot(QPainter& painter, const QPointF& from, int team, QColor color);
// The light of the lamp after a goal of TEAM.
void PaintLamp(QPainter& painter, int team);

}  // namespace frostmark::rink
