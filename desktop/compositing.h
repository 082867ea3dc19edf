#pragma once

namespace frostmark {

// Whether the desktop blends windows, so that a window can cast a shadow.
bool DesktopIsComposited();

}  // namespace frostmark
