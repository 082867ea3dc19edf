#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cstdio>
#include <ctime>
#include <string>

#include "bench/allocation_count.h"
#include "bench/ratios.h"
#include "bench/world_for_bench.h"

namespace frostmark {
namespace {

constexpr int kGamesARun = 20;
constexpr int kFilesOfWeek = 36;     // two for each of eighteen games
constexpr int kFilesOfSave = 9 + 1;  // and the list of them
constexpr int kRollsOfGame = 1130;   // of an average one

// What the compiler must not find out to be unused.
int sink = 0;

void RollBare(ClockDice& dice, int times) {
  for (int i = 0; i < times; ++i) sink += dice.Roll(100);
}

// One file as safely as it goes: flushed before it takes its name.
void WriteBare(const std::string& temporary, const std::string& path, const std::string& content) {
  std::FILE* out = std::fopen(temporary.c_str(), "wb");
  if (out == nullptr) return;
  std::fwrite(content.data(), 1, content.size(), out);
  std::fflush(out);
  fsync(fileno(out));
  std::fclose(out);
  std::rename(temporary.c_str(), path.c_str());
}

void FlushBare(const std::string& folder) {
  const int file = open(folder.c_str(), O_RDONLY | O_DIRECTORY);
  if (file < 0) return;
  fsync(file);
  close(file);
}

void PlayWeekBare(const std::string& folder, ClockDice& dice, int rolls) {
  const std::string path = folder + "/Settings/bare";
  const std::string content(430, 'x');
  std::array<char, 1024> buffer{};
  for (int file = 0; file < kFilesOfWeek; ++file) {
    WriteBare(path + ".tmp", path, content);
    std::FILE* in = std::fopen(path.c_str(), "rb");
    if (in == nullptr) return;
    sink += static_cast<int>(std::fread(buffer.data(), 1, buffer.size(), in));
    std::fclose(in);
  }
  RollBare(dice, rolls);
}

void SaveBare(const std::string& folder) {
  const std::string settings = folder + "/Settings";
  const std::string content(300, 'x');
  for (int file = 0; file < kFilesOfSave; ++file) {
    WriteBare(settings + "/bare.tmp", settings + "/bare" + std::to_string(file), content);
  }
  FlushBare(folder + "/Teams/Rank F");
  FlushBare(settings);
  FlushBare(settings);
}

bool GameHolds(WorldForBench& world, const Thoroughness& thoroughness) {
  Program& program = world.program();
  Franchise& franchise = program.franchise;
  program.ordvik.LoadPlayerFile(franchise.Team1,
                                program.ordvik.TeamPath("Rank C", franchise.RankC.List(0)));
  program.ordvik.LoadPlayerFile(franchise.Team2,
                                program.ordvik.TeamPath("Rank C", franchise.RankC.List(1)));
  const auto play = [&] {
    program.game_simulation.LoadGameLines(franchise.Team1, franchise.Team2);
    program.game_simulation.SimulateGame();
  };
  play();
  const auto before = AllocationCount();
  play();
  const auto allocations = AllocationCount() - before;

  ClockDice dice;
  double bare_rolls = 0;
  const bool holds =
      Holds({.name = "An unwatched game, per roll",
             .work =
                 [&] {
                   for (int game = 0; game < kGamesARun; ++game) play();
                 },
             .bare =
                 [&] {
                   RollBare(dice, kGamesARun * kRollsOfGame);
                   bare_rolls += kGamesARun * kRollsOfGame;
                 },
             .limit = 2.5,
             .units_of_work = [&] { return static_cast<double>(program.ordvik.counts().rolls); },
             .units_of_bare = [&] { return bare_rolls; }},
            thoroughness);
  franchise.Team1.Clear();
  franchise.Team2.Clear();
  return Holds("Allocations of a game after the first", static_cast<double>(allocations), "", 0) &&
         holds;
}

bool WeekHolds(WorldForBench& world, const Thoroughness& thoroughness) {
  Program& program = world.program();
  const auto play = [&] {
    program.franchise.NextWeek.SetCaption("Week 1");
    world.PlayOneWeek();
  };
  const auto before = program.ordvik.counts().rolls;
  play();
  const auto rolls = static_cast<int>(program.ordvik.counts().rolls - before);
  ClockDice dice;
  return Holds({.name = "A simulated week",
                .work = play,
                .bare = [&] { PlayWeekBare(world.Folder(), dice, rolls); },
                .limit = 2,
                .on_the_wall = true},
               thoroughness);
}

bool SaveHolds(WorldForBench& world, const Thoroughness& thoroughness) {
  return Holds({.name = "A save",
                .work = [&] { world.program().franchise.SaveGame(); },
                .bare = [&] { SaveBare(world.Folder()); },
                .limit = 2,
                .on_the_wall = true},
               thoroughness);
}

// The rosters that a build rolls, without the files that it writes.
bool BuildHolds(WorldForBench& world, const Thoroughness& thoroughness) {
  Program& program = world.program();
  const auto rolls = [&] { return static_cast<double>(program.ordvik.counts().rolls); };
  double before = rolls();
  program.team_creator.GenTeam();
  const double rolls_of_team = rolls() - before;
  before = rolls();
  program.startup.BuildLeague();
  const double teams = (rolls() - before) / rolls_of_team;
  double best = 1;
  for (int round = 0; round < thoroughness.rounds * 10; ++round) {
    const std::clock_t start = std::clock();
    for (int team = 0; team < 10; ++team) program.team_creator.GenTeam();
    best = std::min(best, static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC / 10);
  }
  return Holds("A league build without its files", best * teams * 1e3, "ms", 5);
}

}  // namespace

bool AllHold(const Thoroughness& thoroughness) {
  WorldForBench world;
  bool all = GameHolds(world, thoroughness);
  all = WeekHolds(world, thoroughness) && all;
  all = SaveHolds(world, thoroughness) && all;
  return BuildHolds(world, thoroughness) && all;
}

}  // namespace frostmark
