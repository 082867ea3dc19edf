#include <gtest/gtest.h>

#include "tests/replay/doings.h"
#include "tests/replay/replay.h"
#include "tests/replay/seeds.h"

// What users do against the grain, beside the reference.

namespace frostmark::test {

namespace {

// Where to cut a name so that both of its parts fit their boxes.
constexpr std::size_t kMostOfCity = 12;

class TroubleReplay : public testing::TestWithParam<std::uint64_t> {
 protected:
  TroubleReplay() : replay(GetParam()) {
    DoNew(replay);
    DoGenerate(replay);
  }

  // A team of the league RANK once the world is built.
  std::string TeamOf(const std::string& rank, int i) {
    return reference::ItemOf(replay.reference().shelf.List(replay.AppPath() + "/Teams/" + rank), i);
  }

  void TakeNameOf(const std::string& other) {
    const std::size_t blank = other.rfind(' ', kMostOfCity);
    DoCreateTeam(replay, other.substr(0, blank), other.substr(blank + 1));
  }

  Replay replay;
};

TEST_P(TroubleReplay, ANameWithinAnotherName) {
  replay.Run();
  // Without its last letter the name still fits all lines and paths of the other team.
  const std::string other = TeamOf("Rank F", 2);
  const std::size_t blank = other.rfind(' ', kMostOfCity);
  DoCreateTeam(replay, other.substr(0, blank), other.substr(blank + 1, other.size() - blank - 2));
  DoSim(replay, "10");
  DoBegin(replay);
  DoBegin(replay);
  replay.Run();
}

TEST_P(TroubleReplay, ANameThatIsALeague) {
  DoCreateTeam(replay, "Rank", "E");
  DoSim(replay, "10");
  DoBegin(replay);
  DoBegin(replay);
  DoDraft(replay);
  DoNewSeason(replay);
  DoSim(replay, "3");
  replay.Run();
}

// The league then has five teams. Its first game without an opponent never begins.
TEST_P(TroubleReplay, ANameThatIsTaken) {
  replay.Run();
  TakeNameOf(TeamOf("Rank F", 0));
  DoBegin(replay);
  replay.Run();
}

// Below "Rank F" there is no league, so that a fifth team is all that its end of season needs: the
// loser who is not there is merely named, by the empty text.
TEST_P(TroubleReplay, ASeasonCutShortWithFiveTeamsInRankF) {
  replay.Run();
  TakeNameOf(TeamOf("Rank F", 0));
  DoTesting(replay);
  DoBegin(replay);
  replay.Run();
}

// Both teams are then the user's: two games per week, two turns in the draft.
TEST_P(TroubleReplay, ANameThatIsTakenInAnotherLeague) {
  replay.Run();
  TakeNameOf(TeamOf("Rank E", 3));
  DoSim(replay, "10");
  DoBegin(replay);
  DoBegin(replay);
  DoDraft(replay);
  DoNewSeason(replay);
  replay.Run();
}

TEST_P(TroubleReplay, SimThroughTheOffSeasonAndOn) {
  DoCreateTeam(replay, "Montreal", "Breeze");
  DoSim(replay, "11");
  DoDraft(replay);
  DoNewSeason(replay);
  DoMendLineUp(replay);
  DoSim(replay, "1e1");
  DoSim(replay, "20");
  replay.Run();
}

TEST_P(TroubleReplay, SimAnswers) {
  DoCreateTeam(replay, "Montreal", "Breeze");
  for (const char* answer : {"", "x", "1", "-3", "1.9", "3.9", "3", "3.5"}) DoSim(replay, answer);
  DoTesting(replay);
  replay.Do(
      "Sim at the off-season", [](Program& program) { program.franchise.Command2.Click(); },
      [](reference::ReferenceGame& rules) { rules.PressSim(); });
  replay.Run();
}

// A second franchise in one run stands on the lists of the first. Its name in small letters has its
// place in the alphabet all the same.
TEST_P(TroubleReplay, TwoFranchisesInOneRun) {
  DoCreateTeam(replay, "Montreal", "Breeze");
  DoSim(replay, "3");
  replay.Answer("no");
  DoNew(replay);
  replay.Answer("yes");
  DoNew(replay);
  DoGenerate(replay);
  DoCreateTeam(replay, "denver", "snow");
  DoSim(replay, "3");
  DoSave(replay);
  DoLoad(replay);
  DoLoad(replay);
  DoBegin(replay);
  replay.Run();
}

TEST_P(TroubleReplay, ALineUpWithoutItsCenter) {
  DoCreateTeam(replay, "Montreal", "Breeze");
  replay.Do(
      "the center's way to training",
      [](Program& program) {
        program.franchise.MainRoster.Select(4);
        program.franchise.Command3.Click();
      },
      [](reference::ReferenceGame& rules) { rules.PressToTraining(4); });
  DoBegin(replay);
  DoSim(replay, "4");
  DoMendLineUp(replay);
  DoSim(replay, "4");
  replay.Run();
}

TEST_P(TroubleReplay, ASimRunCancelled) {
  DoCreateTeam(replay, "Montreal", "Breeze");
  replay.Answer("9");
  replay.Do(
      "Sim and Cancel",
      [this](Program& program) {
        for (std::uint64_t yields = 1000 * (1 + GetParam() % 5); yields > 0; --yields) {
          replay.front_end().AtYield([] {});
        }
        replay.front_end().AtYield([&program] {
          EXPECT_TRUE(program.franchise.Command5.Visible());
          program.franchise.Command5.Click();
        });
        program.franchise.Command2.Click();
      },
      [](reference::ReferenceGame& rules) {
        rules.cancels = true;
        rules.PressSim();
      });
  replay.Run();
  EXPECT_EQ(replay.program().franchise.NextWeek.Caption(), "Week 2");
}

void SetUpAgainstItself(Program& program) {
  FStartGame& screen = program.f_start_game;
  program.startup.HighButton1.Click();
  screen.List3.Select(3);
  screen.File1.Select(1);
  screen.List4.Select(3);
  screen.File2.Select(1);
  screen.HighButton1.Click();
}

// The game that waits for its end goes on at once with the scores of the one before.
TEST_P(TroubleReplay, AFranchiseGameLeftForASingleGame) {
  DoCreateTeam(replay, "Montreal", "Breeze");
  DoSim(replay, "2");
  replay.Run();
  const std::string team = TeamOf("Rank C", 1);
  replay.front_end().instead_of_watching = [this] {
    Program& program = replay.program();
    program.game.HighButton1.Click();
    replay.front_end().PassTime(std::chrono::milliseconds(100 * 50));
    program.game.Label5.Click();
    EXPECT_TRUE(program.game.FranchiseMatch);
    SetUpAgainstItself(program);
  };
  replay.reference().watch = [team](reference::ReferenceGame& rules) {
    rules.PressStart();
    for (int tick = 0; tick < 50; ++tick) rules.TickOfPeriod(1);
    rules.Abandon();
    reference::Lines roster;
    rules.LoadPlayerFile(roster, rules.TeamPath("Rank C", team));
    rules.franchise_match = false;
    rules.SetUpMatch(roster, team, roster, team);
  };
  DoBegin(replay);
  replay.Run();
}

INSTANTIATE_TEST_SUITE_P(Seeds, TroubleReplay, Seeds(3));

}  // namespace

}  // namespace frostmark::test
