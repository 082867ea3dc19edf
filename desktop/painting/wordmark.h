#pragma once

#include <QPainterPath>

namespace frostmark {

// The name of the game as a drawing, from 0, 0 at its upper left. It is a mark, not a text: it
// looks the same whatever fonts there are.
QPainterPath Wordmark();

inline constexpr double kWordmarkWidth = 7074;
inline constexpr double kWordmarkHeight = 712;

}  // namespace frostmark
