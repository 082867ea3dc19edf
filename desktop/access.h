#pragma once

namespace frostmark {

// Makes windows, lists and announcements what they are to a screen reader: a window, rows that can
// be chosen and activated, a notification. Everything else is as the toolkit has it. To be called
// when there is an application; a second call changes nothing.
void InstallAccess();

}  // namespace frostmark
