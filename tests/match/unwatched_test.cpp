#include <algorithm>

#include "tests/match/match_scene.h"

// The unwatched machine on its own: its lines, its length, its stand-in at the face-off.

namespace frostmark::test {
namespace {

enum { kGO, kRD, kLD, kRF, kCF, kLF };

using Asked = std::vector<int>;

class UnwatchedMatchTest : public MatchMachine<GameSimulation> {
 protected:
  Lines Without(const Lines& line, std::initializer_list<std::string> positions) {
    Lines rest;
    for (const std::string& record : line) {
      const std::string position = HockeyNaming::GetField(record, "Position");
      if (std::find(positions.begin(), positions.end(), position) == positions.end()) {
        rest.push_back(record);
      }
    }
    return rest;
  }
};

TEST_F(UnwatchedMatchTest, TheLinesAreThePlayersWithN) {
  RecordList team1;
  RecordList team2;
  Lines roster = MakeRoster(80);
  FillList(team1, roster);
  roster[2] = MakeRecord({.name = "small", .position = "LD", .training = "n"});
  roster[3] = MakeRecord({.name = "none", .position = "RF", .training = ""});
  roster[4] = MakeRecord({.name = "long", .position = "CF", .training = "NN"});
  roster[10] = MakeRecord({.name = "late", .position = "LF", .training = "N"});
  FillList(team2, roster);
  machine().GoalsTeam1 = 4;
  machine().GoalsTeam2 = 5;
  machine().LoadGameLines(team1, team2);
  const Lines first = MakeRoster(80);
  EXPECT_EQ(ItemsOf(franchise().Line1Stats), Lines(first.begin(), first.begin() + 6));
  EXPECT_EQ(ItemsOf(franchise().Line2Stats), (Lines{roster[0], roster[1], roster[5], roster[10]}));
  EXPECT_EQ(machine().GoalsTeam1, 0);
  EXPECT_EQ(machine().GoalsTeam2, 0);
  EXPECT_EQ(front_end().Yields(), 22);
  EXPECT_TRUE(dice().Rolls().empty());
}

TEST_F(UnwatchedMatchTest, TheFirstListIsWalkedFirst) {
  RecordList team1;
  RecordList team2;
  FillList(team1, MakeRoster(80));
  FillList(team2, MakeRoster(80));
  front_end().AtYield([&] {
    EXPECT_EQ(franchise().Line1Stats.ListCount(), 1);
    EXPECT_EQ(franchise().Line2Stats.ListCount(), 0);
  });
  machine().LoadGameLines(team1, team2);
}

TEST_F(UnwatchedMatchTest, AGameIsOneFaceOffAndSixHundredSteps) {
  LineUp(LeadLine(1, {.shooting = 0}), LeadLine(2, {.shooting = 0}));
  machine().PuckPosition = "CF";
  dice().Give({1, 1, 1});
  machine().LoadGameLines(franchise().Line1Stats, franchise().Line2Stats);
  LineUp(line1, line2);
  const auto before = front_end().Yields();
  machine().SimulateGame();
  // A pass, then 599 shots of a player who can't get one away: a side and a shot each.
  EXPECT_EQ(dice().Rolls().size(), 3U + 599U * 2U);
  EXPECT_EQ(front_end().Yields() - before, 18 + (18 + 1) + 599 * (18 + 1));
  EXPECT_EQ(machine().PassesLeft, 0);
  EXPECT_EQ(franchise().Score1, 0);
  EXPECT_EQ(franchise().Score2, 0);
}

TEST_F(UnwatchedMatchTest, TheScoresAreStoredAtTheEndOnly) {
  franchise().Score1 = 7;
  franchise().Score2 = 8;
  machine().PuckPosition = "CF";
  Play({1, 1, 1, 1, 80, 81, 50, 85, 86});
  EXPECT_EQ(machine().GoalsTeam1, 1);
  EXPECT_EQ(franchise().Score1, 7);
  EXPECT_EQ(franchise().Score2, 8);
}

TEST_F(UnwatchedMatchTest, AGoalInTheLastStepCounts) {
  machine().LoadGameLines(franchise().Team1, franchise().Team2);
  LineUp(line1, line2);
  machine().PuckPosition = "CF";
  dice().Give({2, 1, 1});
  for (int miss = 0; miss < 598; ++miss) dice().Give({1, 100});
  dice().Give({1, 80, 81, 50, 85, 86});
  machine().SimulateGame();
  EXPECT_EQ(dice().LeftOver(), 0U);
  EXPECT_EQ(dice().Rolls().size(), 3U + 598U * 2U + 6U);
  EXPECT_EQ(franchise().Score1, 0);
  EXPECT_EQ(franchise().Score2, 1);
  EXPECT_EQ(machine().PassesLeft, -2);
  // The next game's face-off does not mind.
  Play({1, 4});
  EXPECT_EQ(machine().PassesLeft, 4);
}

TEST_F(UnwatchedMatchTest, NothingIsClearedBetweenGames) {
  machine().PuckPosition = "CF";
  Play({1, 1, 1, 1, 80, 80});  // a steal by rd2
  const std::string defender = machine().Defender;
  RecordList team;
  FillList(team, LeadLine(3));
  machine().LoadGameLines(team, team);
  EXPECT_EQ(machine().PuckPosition, "RF");
  EXPECT_EQ(machine().Defender, defender);
  EXPECT_EQ(machine().PasserName, "rd2");
  EXPECT_EQ(machine().DefenderPosition, "RD");
  Play({2, 2});
  EXPECT_EQ(machine().PuckPosition, "RF");
  EXPECT_EQ(machine().Defender, defender);
  EXPECT_EQ(HockeyNaming::GetField(machine().PuckCarrier, "Name"), "cf3");
}

TEST_F(UnwatchedMatchTest, ARightForwardStandsInForAMissingCenter) {
  LineUp(Without(line1, {"CF"}), Without(line2, {"CF"}));
  Play({1, 2});
  EXPECT_EQ(HockeyNaming::GetField(machine().PuckCarrier, "Name"), "rf1");
  Play({2, 2});
  EXPECT_EQ(HockeyNaming::GetField(machine().PuckCarrier, "Name"), "rf2");
}

TEST_F(UnwatchedMatchTest, TheStandInCostsAnotherWalk) {
  const auto yields = [this] {
    const auto before = front_end().Yields();
    Play({2, 2});
    return front_end().Yields() - before;
  };
  const auto whole = yields();
  LineUp(Without(line1, {"CF"}), line2);
  EXPECT_EQ(yields(), whole + 5 - 1);  // one walk of five more, and the first walk is shorter
}

TEST_F(UnwatchedMatchTest, ATeamWithoutEitherSendsNobody) {
  LineUp(line1, Without(line2, {"CF", "RF"}));
  Play({1, 2});
  EXPECT_EQ(machine().PuckCarrier, line1[kCF]);
  Play({2, 2});
  EXPECT_EQ(machine().PuckCarrier, "");
  EXPECT_EQ(machine().PuckTeam, 2);
}

TEST_F(UnwatchedMatchTest, APassByNobodyMakesAFaceOffAndIsFinished) {
  LineUp(line1, Without(line2, {"CF", "RF"}));
  machine().PuckPosition = "LF";
  Play({2, 3, /*pass*/ 1, /*face-off*/ 1, 4});
  EXPECT_EQ(dice().Asked(), (Asked{2, 6, 2, 2, 6}));
  EXPECT_EQ(machine().PuckTeam, 1);
  EXPECT_EQ(machine().PuckPosition, "CF");
  EXPECT_EQ(machine().PuckCarrier, line1[kCF]);
  EXPECT_EQ(machine().PassesLeft, 3);
}

TEST_F(UnwatchedMatchTest, AShotByNobodyMakesAFaceOffAndIsOver) {
  LineUp(line1, Without(line2, {"CF", "RF"}));
  machine().PuckPosition = "LF";
  // The pass that is finished finds nobody at "CF", so that a shot is due with no carrier.
  Play({2, 1, /*pass*/ 1, /*face-off*/ 2, 1, /*shot*/ 1, 1, /*face-off*/ 1, 5});
  EXPECT_EQ(dice().Asked(), (Asked{2, 6, 2, 2, 6, 2, 100, 2, 6}));
  EXPECT_EQ(machine().PassesLeft, 5);
  EXPECT_EQ(machine().PuckCarrier, line1[kCF]);
}

// Dice that look on when a shot is rolled.
class ShotWatch : public Dice {
 public:
  int Roll(int n) override {
    if (last_ == 2 && n == 100 && OnShot) OnShot();
    last_ = n;
    return dice_.Roll(n);
  }
  Handler OnShot;

 private:
  ScriptedDice dice_;
  int last_ = 0;
};

TEST_F(UnwatchedMatchTest, OnlyForwardsShoot) {
  ScriptedFrontEnd other_front_end;
  ShotWatch watch;
  Program other(other_front_end, watch, world.path());
  int shots = 0;
  watch.OnShot = [&] {
    const GameSimulation& game = other.game_simulation;
    if (game.PuckPosition.empty()) return;
    ++shots;
    EXPECT_TRUE(IsForward(FieldView(game.PuckCarrier, Field::kPosition))) << game.PuckCarrier;
  };
  for (int game = 0; game < 20; ++game) {
    FillList(other.franchise.Line1Stats, line1);
    FillList(other.franchise.Line2Stats, line2);
    other.game_simulation.SimulateGame();
  }
  EXPECT_GT(shots, 1000);
}

}  // namespace
}  // namespace frostmark::test
