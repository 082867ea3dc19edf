#pragma once

#include "console/transcript.h"
#include "ui/controls.h"
#include "ui/screen.h"

namespace frostmark {

// Whether a person sees CONTROL on its screen: visible, and on a page that is in front.
bool InSight(const Control& control);

// Prints the visible screens of SCREENS, one below the other.
void DrawScreens(const ScreenList& screens, Transcript& transcript);

}  // namespace frostmark
