#include <gtest/gtest.h>

#include "tests/replay/replay.h"

// Whole seasons of the program beside the reference.

namespace frostmark::replay {

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

TEST_P(SeasonReplay, ThreeYears) {
  Replay replay(GetParam());
  QueueNewFranchise(replay);
  for (int year = 0; year < 3; ++year) {
    DoSim(replay, "10");
    DoBegin(replay);
    QueueOffSeason(replay);
  }
  replay.Run();
}

INSTANTIATE_TEST_SUITE_P(Seeds, SeasonReplay, testing::Values(1, 2, 3));

}  // namespace

}  // namespace frostmark::replay
