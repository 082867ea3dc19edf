#pragma once

#include <string>

#include "ui/control.h"
#include "ui/screen.h"

namespace frostmark {

// What a control is called in text where its caption does not say it: drawn on a screen, its place
// and colours tell. Nullptr where the caption is enough; empty for a control that text leaves out.
const char* HintFor(const Control& control);

// The caption of SCREEN, or what to call it where the caption is never seen.
const std::string& TitleFor(const Screen& screen);

// Whether the news of a list comes at its end.
bool GrowsAtItsEnd(const Control& list);

// Whether a button works on the selected item of a list that has no click of its own.
bool SelectionCounts(const Control& list);

}  // namespace frostmark
