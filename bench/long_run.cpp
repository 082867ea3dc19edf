#include <unistd.h>

#include <chrono>
#include <cstdio>
#include <fstream>
#include <string>

#include "bench/figures.h"
#include "bench/world_for_bench.h"

namespace frostmark {
namespace {

double ResidentMegabytes() {
  std::ifstream statm("/proc/self/statm");
  long total = 0;
  long resident = 0;
  statm >> total >> resident;
  return static_cast<double>(resident) * static_cast<double>(sysconf(_SC_PAGESIZE)) / 1e6;
}

struct Stretch {
  double seconds = 0;
  double megabytes = 0;
};

Stretch PlayTenSeasons(WorldForBench& world) {
  const auto start = std::chrono::steady_clock::now();
  for (int season = 0; season < 10; ++season) {
    for (int week = 1; week <= 9; ++week) {
      world.program().franchise.NextWeek.SetCaption("Week " + std::to_string(week));
      world.PlayOneWeek();
    }
  }
  const std::chrono::duration<double> time = std::chrono::steady_clock::now() - start;
  return {time.count(), ResidentMegabytes()};
}

}  // namespace

void PrintTriesPerLeague() {
  WorldForBench world;
  Program& program = world.program();
  constexpr int kTeams = 20000;
  int tries[kRankCount] = {};
  for (int i = 0; i < kTeams; ++i) {
    program.team_creator.GenTeam();
    const int overall = program.hockey_naming.TeamOverall;
    tries[0] += overall <= 80 ? 1 : 0;
    tries[1] += overall >= 80 && overall <= 82 ? 1 : 0;
    tries[2] += overall >= 82 && overall < 84 ? 1 : 0;
    tries[3] += overall >= 85 && overall <= 86 ? 1 : 0;
    tries[4] += overall >= 86 && overall <= 88 ? 1 : 0;
    tries[5] += overall >= 88 ? 1 : 0;
  }
  std::printf("\nTeams rolled for one that fits its league:");
  for (int league = 0; league < kRankCount; ++league) {
    std::printf("  %s %.1f", kRanks[static_cast<std::size_t>(league)],
                static_cast<double>(kTeams) / tries[league]);
  }
  std::printf("\n");
}

void PrintHundredSeasons() {
  WorldForBench world;
  PlayTenSeasons(world);  // warm up: lists and files reach their size
  const Stretch first = PlayTenSeasons(world);
  for (int i = 0; i < 8; ++i) PlayTenSeasons(world);
  const Stretch last = PlayTenSeasons(world);
  std::printf(
      "\nA hundred seasons: %.1f ms a season in the first ten, %.1f in the last ten (%.3f); "
      "resident %.2f MB, then %.2f (%.3f)\n",
      first.seconds * 100, last.seconds * 100, last.seconds / first.seconds, first.megabytes,
      last.megabytes, last.megabytes / first.megabytes);
}

}  // namespace frostmark
