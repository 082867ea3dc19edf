#include <benchmark/benchmark.h>

#include <cstdio>
#include <cstdlib>
#include <map>
#include <string>

#include "bench/figures.h"

namespace {

// Prints like the console and remembers each time, so that the ratios of one run can be told.
class RatioReporter : public benchmark::ConsoleReporter {
 public:
  void ReportRuns(const std::vector<Run>& runs) override {
    ConsoleReporter::ReportRuns(runs);
    for (const Run& run : runs) {
      const std::string name = run.run_name.function_name;
      times_[name] = run.GetAdjustedCPUTime() / benchmark::GetTimeUnitMultiplier(run.time_unit);
    }
  }

  void PrintRatio(const char* what, const char* of, double limit) const {
    const auto a = times_.find(what);
    const auto b = times_.find(of);
    if (a == times_.end() || b == times_.end()) return;
    std::printf("%s / %s = %.2f (at most %.1f)\n", what, of, a->second / b->second, limit);
  }

 private:
  std::map<std::string, double>
      times_;  // processor seconds: other load on the machine does not count
};

}  // namespace

int main(int argc, char** argv) {
  benchmark::Initialize(&argc, argv);
  frostmark::RegisterWeekBenchmarks();
  RatioReporter reporter;
  benchmark::RunSpecifiedBenchmarks(&reporter);
  std::printf("\n");
  reporter.PrintRatio("UnwatchedGame", "BareRolls", 5);
  reporter.PrintRatio("SimulatedWeek", "BareWeek", 4);
  frostmark::PrintTriesPerLeague();
  frostmark::PrintHundredSeasons();
#ifdef FROSTMARK_HAS_DESKTOP
  if (std::getenv("DISPLAY") == nullptr) setenv("QT_QPA_PLATFORM", "offscreen", 0);
  frostmark::PrintStartupTime(argv[0]);
  frostmark::PrintDesktopFigures(argc, argv);
#endif
  return 0;
}
