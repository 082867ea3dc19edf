#include <cstdio>
#include <cstdlib>
#include <cstring>

#include "bench/figures.h"
#include "bench/ratios.h"

// What the game may cost, a line for each figure with its limit and whether it holds. Ends with 1
// if one falls short. Figures of the processor's time stand still on a busy machine; those on the
// wall (the disk, the first frame) need a quiet one.
//
//   frostmark-bench [--quick]
int main(int argc, char** argv) {
  const bool quick = argc > 1 && std::strcmp(argv[1], "--quick") == 0;
  if (argc > 2 || (argc == 2 && !quick)) {
    std::fprintf(stderr, "usage: frostmark-bench [--quick]\n");
    return 2;
  }
  bool all = frostmark::AllHold({.rounds = quick ? 15 : 60});
  if (!quick) frostmark::PrintTriesPerLeague();
  if (!quick) all = frostmark::HundredSeasonsHold() && all;
#ifdef FROSTMARK_HAS_DESKTOP
  // Windows of the toolkit on no platform at all tell of themselves.
  if (std::getenv("DISPLAY") == nullptr) setenv("QT_QPA_PLATFORM", "offscreen", 0);
  setenv("QT_LOGGING_RULES", "*.debug=false;*.info=false;*.warning=false", 0);
  all = frostmark::StartupHolds(argv[0]) && all;
  if (!quick) frostmark::PrintDesktopFigures(argc, argv);
#endif
  std::printf("\n%s\n", all ? "All of it holds." : "Not all of it holds.");
  return all ? EXIT_SUCCESS : EXIT_FAILURE;
}
