#pragma once

namespace frostmark {

// Prints how often a league's band makes the build roll a team again.
void PrintTriesPerLeague();

// Plays a hundred seasons of ten weeks, prints a line for each and returns whether time and memory
// stay flat.
bool HundredSeasonsHold();

// Prints what giving way and waiting cost on the desktop, and a week in its windows.
void PrintDesktopFigures(int argc, char** argv);

// Starts an empty window and the game in turn, each until its first frame, prints the ratio of
// their medians and returns whether it holds. Their programs lie beside BENCH, the path of the
// running one. Without a display no window system takes part, and nothing is asked of the ratio.
bool StartupHolds(const char* bench);

}  // namespace frostmark
