#pragma once

#include <string>

#include "ui/control.h"
#include "ui/screen.h"

namespace frostmark {

// Whether text leaves CONTROL out.
bool LeftOut(const Control& control);

// What stands over a list or beside a bar or box that no label names.
std::string HeadingOf(const Control& control);

// What CONTROL is called where it is offered for a press or a choice; OTHERWISE when its screen
// calls it nothing.
std::string OfferedAs(const Control& control, const std::string& otherwise);

// Whether the news of a list comes at its end.
bool GrowsAtItsEnd(const Control& list);

// Whether a button works on the selected item of a list that has no click of its own.
bool SelectionCounts(const Control& list);

}  // namespace frostmark
