#include <unistd.h>

#include <cstdio>
#include <ctime>
#include <fstream>

#include "bench/figures.h"
#include "bench/ratios.h"
#include "bench/world_for_bench.h"
#include "records/leagues.h"
#include "season/week_table.h"

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
  double milliseconds_a_season = 0;  // of processor time: other load does not count
  double rolls_a_season = 0;
  double megabytes = 0;
};

Stretch PlayTenSeasons(WorldForBench& world) {
  constexpr int kSeasons = 10;
  Program& program = world.program();
  const auto rolls = program.ordvik.counts().rolls;
  const std::clock_t start = std::clock();
  for (int season = 0; season < kSeasons; ++season) {
    program.franchise.NextWeek.SetCaption("Week 1");
    for (int week = 1; week <= kWeeksOfSeason; ++week) world.PlayOneWeek();
  }
  const double seconds = static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC;
  return {seconds * 1e3 / kSeasons,
          static_cast<double>(program.ordvik.counts().rolls - rolls) / kSeasons,
          ResidentMegabytes()};
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

bool HundredSeasonsHold() {
  WorldForBench world;
  Stretch last;
  PlayTenSeasons(world);  // warm up: lists and files reach their size
  const Stretch first = PlayTenSeasons(world);
  for (int i = 0; i < 9; ++i) last = PlayTenSeasons(world);
  std::printf(
      "\n%.1f ms and %.0f rolls a season in the first ten, %.1f ms and %.0f in the last ten\n",
      first.milliseconds_a_season, first.rolls_a_season, last.milliseconds_a_season,
      last.rolls_a_season);
  const double slower = last.milliseconds_a_season / last.rolls_a_season /
                        (first.milliseconds_a_season / first.rolls_a_season);
  const bool flat = Holds("Season 100 against season 10, a roll", slower, "times", 1.1);
  return Holds("Memory after 100 against 10", last.megabytes / first.megabytes, "times", 1.05) &&
         flat;
}

}  // namespace frostmark
