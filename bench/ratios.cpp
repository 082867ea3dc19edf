#include "bench/ratios.h"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <ctime>
#include <limits>

namespace frostmark {
namespace {

double Now(bool on_the_wall) {
  if (on_the_wall) {
    return std::chrono::duration<double>(std::chrono::steady_clock::now().time_since_epoch())
        .count();
  }
  timespec time{};
  clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
  return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) * 1e-9;
}

// The seconds that WORK takes, per unit if UNITS tells how many there were.
double Once(const std::function<void()>& work, const std::function<double()>& units,
            bool on_the_wall) {
  const double before = units ? units() : 0;
  const double start = Now(on_the_wall);
  work();
  const double took = Now(on_the_wall) - start;
  return units ? took / (units() - before) : took;
}

bool Print(const std::string& name, const std::string& figure, double limit, bool holds) {
  std::printf("%-34s %-38s at most %-6.4g %s\n", name.c_str(), figure.c_str(), limit,
              holds ? "holds" : "falls short");
  std::fflush(stdout);
  return holds;
}

}  // namespace

bool Holds(const Comparison& comparison, const Thoroughness& thoroughness) {
  double work = std::numeric_limits<double>::max();
  double bare = work;
  for (int round = 0; round < thoroughness.rounds; ++round) {
    work = std::min(work, Once(comparison.work, comparison.units_of_work, comparison.on_the_wall));
    bare = std::min(bare, Once(comparison.bare, comparison.units_of_bare, comparison.on_the_wall));
  }
  const double ratio = work / bare;
  char figure[64];
  std::snprintf(figure, sizeof figure, "%.2f times (%.4g us, bare %.4g us)", ratio, work * 1e6,
                bare * 1e6);
  return Print(comparison.name, figure, comparison.limit, ratio <= comparison.limit);
}

bool Holds(const std::string& name, double figure, const std::string& unit, double limit) {
  char text[64];
  std::snprintf(text, sizeof text, "%.4g %s", figure, unit.c_str());
  return Print(name, text, limit, figure <= limit);
}

}  // namespace frostmark
