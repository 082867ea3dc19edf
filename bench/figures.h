#pragma once

namespace frostmark {

// The benchmarks whose arguments are known only at run time.
void RegisterWeekBenchmarks();

// Prints how often a league's band makes the build roll a team again.
void PrintTriesPerLeague();

// Plays a hundred seasons of ten weeks and prints whether time and memory stay flat.
void PrintHundredSeasons();

// Prints what giving way and waiting cost on the desktop, and a week in its windows.
void PrintDesktopFigures(int argc, char** argv);

// Starts an empty window and the game in turn, each until its first frame, and prints both medians
// and their ratio. Their programs lie beside BENCH, the path of the running one.
void PrintStartupTime(const char* bench);

}  // namespace frostmark
