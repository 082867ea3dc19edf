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
      const double unit = benchmark::GetTimeUnitMultiplier(run.time_unit);
      times_[name] = {run.GetAdjustedCPUTime() / unit, run.GetAdjustedRealTime() / unit};
    }
  }

  void PrintRatio(const char* what, const char* of, double limit) const {
    const auto a = times_.find(what);
    const auto b = times_.find(of);
    if (a == times_.end() || b == times_.end()) return;
    std::printf("%s / %s = %.2f (at most %.1f)\n", what, of,
                a->second.processor / b->second.processor, limit);
  }

  // By the clock on the wall, for what waits for the disk.
  void PrintRatioOfWaiting(const char* what, const char* of, double limit) const {
    const auto a = times_.find(what);
    const auto b = times_.find(of);
    if (a == times_.end() || b == times_.end()) return;
    std::printf("%s / %s = %.2f on the disk (at most %.1f)\n", what, of,
                a->second.real / b->second.real, limit);
  }

 private:
  struct Seconds {
    double processor;  // other load on the machine does not count
    double real;
  };
  std::map<std::string, Seconds> times_;
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
  reporter.PrintRatioOfWaiting("SimulatedWeek", "BareWeek", 2);
  reporter.PrintRatioOfWaiting("SavedGame", "BareSave", 2);
  frostmark::PrintTriesPerLeague();
  frostmark::PrintHundredSeasons();
#ifdef FROSTMARK_HAS_DESKTOP
  if (std::getenv("DISPLAY") == nullptr) setenv("QT_QPA_PLATFORM", "offscreen", 0);
  frostmark::PrintStartupTime(argv[0]);
  frostmark::PrintDesktopFigures(argc, argv);
#endif
  return 0;
}
