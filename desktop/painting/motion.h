#pragma once

namespace frostmark {

// Whether pictures may move to please the eye. Not where the desktop asks for less motion: through
// its style, or through the settings of GNOME or Plasma, which are asked at the first call. Until
// they have answered, things move.
bool MotionWanted();

}  // namespace frostmark
