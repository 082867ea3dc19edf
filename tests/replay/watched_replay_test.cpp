#include <gtest/gtest.h>

#include "tests/replay/replay.h"
#include "tests/replay/rosters.h"
#include "tests/replay/seeds.h"

// Watched games of the program beside the reference, tick by tick.

namespace frostmark::test {

namespace {

class WatchedReplay : public testing::TestWithParam<std::uint64_t> {};

const char* const kHome = "Boston Braves";
const char* const kVisitor = "Denver Blizzard";

void PutTeams(Replay& replay, const reference::Lines& home, const reference::Lines& visitor) {
  replay.PutTeam("Rank F", kHome, home);
  replay.PutTeam("Rank A", kVisitor, visitor);
}

void QueueSetUp(Replay& replay) {
  replay.Do(
      "the set-up of a single game",
      [](Program& program) {
        FStartGame& screen = program.f_start_game;
        program.startup.HighButton1.Click();
        screen.List3.Select(0);
        screen.File1.Select(0);
        screen.List4.Select(5);
        screen.File2.Select(0);
        screen.HighButton1.Click();
      },
      [](reference::ReferenceGame& rules) {
        reference::Lines& home = rules.lists["FStartGame.List1"];
        reference::Lines& visitor = rules.lists["FStartGame.List2"];
        home.clear();
        visitor.clear();
        rules.LoadPlayerFile(home, rules.TeamPath("Rank F", kHome));
        rules.LoadPlayerFile(visitor, rules.TeamPath("Rank A", kVisitor));
        rules.franchise_match = false;
        rules.SetUpMatch(home, kHome, visitor, kVisitor);
      });
}

void QueuePeriod(Replay& replay, int period) {
  const std::string name = "period " + std::to_string(period);
  replay.Do(
      "the start of " + name, [](Program& program) { program.game.HighButton1.Click(); },
      [](reference::ReferenceGame& rules) { rules.PressStart(); });
  for (int tick = 1; tick <= 201; ++tick) {
    replay.Do(
        "tick " + std::to_string(tick) + " of " + name,
        [&replay](Program&) { replay.front_end().PassTime(std::chrono::milliseconds(100)); },
        [period](reference::ReferenceGame& rules) { rules.TickOfPeriod(period); });
  }
}

void QueueGame(Replay& replay) {
  QueueSetUp(replay);
  for (int period = 1; period <= 3; ++period) QueuePeriod(replay, period);
}

void QueueClose(Replay& replay) {
  replay.Do(
      "Close", [](Program& program) { program.game.HighButton2.Click(); },
      [](reference::ReferenceGame& rules) { rules.PressCloseOfGame(); });
}

// The first game starts without a position of the puck, the second where the first has left it.
TEST_P(WatchedReplay, TwoSingleGames) {
  Whim whim(GetParam());
  Replay replay(GetParam());
  PutTeams(replay, ProperRoster(whim), ProperRoster(whim));
  QueueGame(replay);
  QueueClose(replay);
  QueueGame(replay);
  replay.Run();
  EXPECT_EQ(replay.program().game.Period3.Value(), 200);
  EXPECT_TRUE(replay.program().game.HighButton2.Visible());
}

TEST_P(WatchedReplay, OddLines) {
  Whim whim(GetParam());
  Replay replay(GetParam());
  reference::Lines visitor = OddRoster(whim, 9, 13);
  if (GetParam() % 4 == 0) SpoilOne(whim, visitor);
  PutTeams(replay, OddRoster(whim, 9, 13), visitor);
  QueueGame(replay);
  replay.Run();
}

// Without a center the winner of a face-off is nobody: passes from nobody, or the end of the
// program when nobody is to shoot.
TEST_P(WatchedReplay, NoCenter) {
  Whim whim(GetParam());
  Replay replay(GetParam());
  PutTeams(replay, WithoutPositions(ProperRoster(whim), {"CF"}), ProperRoster(whim));
  QueueGame(replay);
  replay.Run();
}

// Goals of two digits: the result is announced by text, not by number.
TEST_P(WatchedReplay, HighScores) {
  Whim whim(GetParam());
  Replay replay(GetParam());
  PutTeams(replay, ProperRoster(whim, 30, 60), ProperRoster(whim, 30, 60));
  QueueGame(replay);
  QueueClose(replay);
  replay.Run();
}

INSTANTIATE_TEST_SUITE_P(Seeds, WatchedReplay, Seeds(8));

}  // namespace

}  // namespace frostmark::test
