#pragma once

#include "console/page.h"
#include "console/text_layout.h"
#include "ui/controls.h"
#include "ui/screen.h"

namespace frostmark {

// Whether a person sees CONTROL on its screen: visible, and on a page that is in front.
bool InSight(const Control& control);

// SCREEN as text.
TextLines DrawScreen(const Screen& screen, const Page& page);

// The visible screens of SCREENS, one below the other.
TextLines DrawScreens(const ScreenList& screens, const Page& page);

}  // namespace frostmark
