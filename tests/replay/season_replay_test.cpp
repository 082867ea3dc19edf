#include <gtest/gtest.h>

#include "tests/replay/doings.h"
#include "tests/replay/replay.h"
#include "tests/replay/rosters.h"
#include "tests/replay/seeds.h"

// Whole seasons of the program beside the reference.

namespace frostmark::test {

namespace {

class SeasonReplay : public testing::TestWithParam<std::uint64_t> {};

void QueueNewFranchise(Replay& replay) {
  DoNew(replay);
  DoGenerate(replay);
  DoGenerate(replay);
  DoCreateTeam(replay, "Montreal", "Breeze");
}

void QueueOffSeason(Replay& replay) {
  DoBegin(replay);
  DoDraft(replay);
  DoNewSeason(replay);
}

TEST_P(SeasonReplay, ALeagueIsBuiltAndAFranchiseBegun) {
  Replay replay(GetParam());
  QueueNewFranchise(replay);
  replay.Run();
}

TEST_P(SeasonReplay, ASimulatedSeasonWeekByWeek) {
  Replay replay(GetParam());
  QueueNewFranchise(replay);
  for (int week = 2; week <= 10; ++week) DoSim(replay, std::to_string(week));
  DoSave(replay);
  replay.Run();
}

TEST_P(SeasonReplay, AWatchedWeekBetweenSimulatedOnes) {
  Replay replay(GetParam());
  QueueNewFranchise(replay);
  DoBegin(replay);
  DoSim(replay, "4");
  DoBegin(replay);
  DoSim(replay, "10");
  DoBegin(replay);
  replay.Run();
}

// A place left by a training player is taken by a lead player. The user mends the lines or says
// that they are wanted so.
void QueueYears(Replay& replay, int years, bool mends) {
  for (int year = 0; year < years; ++year) {
    if (mends) DoMendLineUp(replay);
    DoSim(replay, "10");
    DoBegin(replay);
    QueueOffSeason(replay);
  }
}

TEST_P(SeasonReplay, ThreeYears) {
  Replay replay(GetParam());
  QueueNewFranchise(replay);
  QueueYears(replay, 3, GetParam() % 2 == 0);
  replay.Run();
}

// All teams grow old at once, so that players retire, the user's too.
TEST_P(SeasonReplay, ThreeYearsOfAnOldWorld) {
  Whim whim(GetParam());
  Replay replay(GetParam());
  QueueNewFranchise(replay);
  replay.Do(
      "the ageing of the world", [](Program&) {},
      [&](reference::ReferenceGame& rules) {
        for (const char* rank : kRanks) {
          for (const std::string& team : rules.shelf.List(replay.AppPath() + "/Teams/" + rank)) {
            replay.PutTeam(rank, team, ProperRoster(whim));
          }
        }
      });
  QueueYears(replay, 3, GetParam() % 2 == 1);
  replay.Run();
}

TEST_P(SeasonReplay, AYearInTwoRuns) {
  Replay replay(GetParam());
  QueueNewFranchise(replay);
  DoSim(replay, "5");
  DoSave(replay);
  DoSim(replay, "6");
  replay.Run();
  // Week 5 is played again on the rosters that it has already changed.
  replay.Restart();
  DoLoad(replay);
  DoSim(replay, "10");
  DoBegin(replay);
  DoSave(replay);
  replay.Run();
  replay.Restart();
  DoLoad(replay);
  QueueOffSeason(replay);
  replay.Run();
}

INSTANTIATE_TEST_SUITE_P(Seeds, SeasonReplay, Seeds(3));

}  // namespace

}  // namespace frostmark::test
