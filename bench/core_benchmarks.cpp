#include <benchmark/benchmark.h>
#include <fcntl.h>
#include <unistd.h>

#include <array>
#include <cstdio>
#include <string>

#include "bench/allocation_count.h"
#include "bench/world_for_bench.h"

namespace frostmark {
namespace {

constexpr int kRollsOfGame = 1130;  // of an average game; what a game really took is reported too
constexpr int kFilesOfWeek = 36;    // two for each of eighteen games

WorldForBench& World() {
  static WorldForBench world;
  return world;
}

void BareRolls(benchmark::State& state) {
  ClockDice dice;
  int sum = 0;
  for (auto _ : state) {
    for (int i = 0; i < kRollsOfGame; ++i) sum += dice.Roll(100);
  }
  benchmark::DoNotOptimize(sum);
}
BENCHMARK(BareRolls);

void UnwatchedGame(benchmark::State& state) {
  Program& program = World().program();
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
  const auto rolls = program.ordvik.counts().rolls;
  std::int64_t allocations = 0;
  for (auto _ : state) {
    const auto before = AllocationCount();
    play();
    allocations += AllocationCount() - before;
  }
  const auto games = static_cast<double>(state.iterations());
  state.counters["rolls"] = static_cast<double>(program.ordvik.counts().rolls - rolls) / games;
  state.counters["allocations"] = static_cast<double>(allocations) / games;
  franchise.Team1.Clear();
  franchise.Team2.Clear();
}
BENCHMARK(UnwatchedGame);

// One file as safely as it goes: flushed before it takes its name.
void WriteBare(const std::string& temporary, const std::string& path, const std::string& content) {
  std::FILE* out = std::fopen(temporary.c_str(), "wb");
  std::fwrite(content.data(), 1, content.size(), out);
  std::fflush(out);
  fsync(fileno(out));
  std::fclose(out);
  std::rename(temporary.c_str(), path.c_str());
}

void FlushBare(const std::string& folder) {
  const int file = open(folder.c_str(), O_RDONLY | O_DIRECTORY);
  fsync(file);
  close(file);
}

// The same files as a week's, read, flushed and written without the game, and the same number of
// rolls.
void BareWeek(benchmark::State& state) {
  const std::string folder = World().Folder();
  const std::string path = folder + "/Settings/bare";
  const std::string temporary = folder + "/Settings/bare.tmp";
  const std::string content(430, 'x');
  std::array<char, 1024> buffer{};
  ClockDice dice;
  int sum = 0;
  for (auto _ : state) {
    for (int file = 0; file < kFilesOfWeek; ++file) {
      WriteBare(temporary, path, content);
      std::FILE* in = std::fopen(path.c_str(), "rb");
      sum += static_cast<int>(std::fread(buffer.data(), 1, buffer.size(), in));
      std::fclose(in);
    }
    const int rolls = static_cast<int>(state.range(0));
    for (int i = 0; i < rolls; ++i) sum += dice.Roll(100);
  }
  benchmark::DoNotOptimize(sum);
}

std::int64_t RollsOfWeek() {
  Program& program = World().program();
  const auto before = program.ordvik.counts().rolls;
  program.franchise.NextWeek.SetCaption("Week 1");
  World().PlayOneWeek();
  return program.ordvik.counts().rolls - before;
}

void SimulatedWeek(benchmark::State& state) {
  Program& program = World().program();
  const auto reads = program.ordvik.counts().file_reads;
  for (auto _ : state) {
    program.franchise.NextWeek.SetCaption("Week 1");
    World().PlayOneWeek();
  }
  state.counters["reads"] = static_cast<double>(program.ordvik.counts().file_reads - reads) /
                            static_cast<double>(state.iterations());
}

// A save's nine files, each by itself, with the flushes that a save of all or nothing needs.
void BareSave(benchmark::State& state) {
  constexpr int kFilesOfSave = 9 + 1;  // and the list of them
  const std::string settings = World().Folder() + "/Settings";
  const std::string content(300, 'x');
  for (auto _ : state) {
    for (int file = 0; file < kFilesOfSave; ++file) {
      WriteBare(settings + "/bare.tmp", settings + "/bare" + std::to_string(file), content);
    }
    FlushBare(World().Folder() + "/Teams/Rank F");
    FlushBare(settings);
    FlushBare(settings);
  }
  for (int file = 0; file < kFilesOfSave; ++file) {
    std::remove((settings + "/bare" + std::to_string(file)).c_str());
  }
}
BENCHMARK(BareSave)->Unit(benchmark::kMillisecond);

void SavedGame(benchmark::State& state) {
  Franchise& franchise = World().program().franchise;
  for (auto _ : state) franchise.SaveGame();
}
BENCHMARK(SavedGame)->Unit(benchmark::kMillisecond);

void LeagueBuild(benchmark::State& state) {
  WorldForBench world;
  std::int64_t rolls = 0;
  for (auto _ : state) {
    const auto before = world.program().ordvik.counts().rolls;
    world.program().startup.BuildLeague();
    rolls += world.program().ordvik.counts().rolls - before;
  }
  state.counters["rolls"] = static_cast<double>(rolls) / static_cast<double>(state.iterations());
}
BENCHMARK(LeagueBuild)->Unit(benchmark::kMillisecond);

}  // namespace

void RegisterWeekBenchmarks() {
  benchmark::RegisterBenchmark("BareWeek", BareWeek)
      ->Arg(RollsOfWeek())
      ->Unit(benchmark::kMillisecond);
  benchmark::RegisterBenchmark("SimulatedWeek", SimulatedWeek)->Unit(benchmark::kMillisecond);
}

}  // namespace frostmark
