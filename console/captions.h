#pragma once

#include <string>
#include <string_view>

#include "ui/control.h"
#include "ui/screen.h"

namespace frostmark {

// The one control that a person can press on a visible screen and that bears CAPTION, or is called
// so where it bears none. The screen in front counts first. Throws Refusal when there is none, or
// more than one on the same screen.
Control& FindByCaption(const ScreenList& screens, std::string_view caption);

// Whether a person gets to CONTROL, and something happens when it is pressed.
bool CanBePressed(Control& control);

// What FindByCaption knows CONTROL by. Empty when it is known by nothing.
std::string CaptionToPress(Control& control);

// "Startup.HighButton4: button visible enabled: New": its kind, its state, what it is called where
// its text does not say it, and its text.
std::string Described(Control& control);

}  // namespace frostmark
