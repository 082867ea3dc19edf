#include "records/runtime_error.h"
#include "tests/match/match_scene.h"

// What the two match machines have in common: the states, the rolls in their order, the walks.

namespace frostmark::test {
namespace {

enum { kGO, kRD, kLD, kRF, kCF, kLF };  // places in a lead line

using Asked = std::vector<int>;

template <typename Machine>
class MatchMachineTest : public MatchMachine<Machine> {
 protected:
  // Brings the puck to the RF of team 1 with a shot due: three rolls.
  void ShotOfTeam(int team, std::initializer_list<int> rolls) {
    this->machine().PuckPosition = "CF";
    this->dice().Give({team, 1, 1});
    this->Play(rolls);
  }
  // What was asked for after the face-off and the one pass of ShotOfTeam.
  Asked AskedInShot() {
    const Asked asked = this->dice().Asked();
    EXPECT_GE(asked.size(), 3U);
    return {asked.begin() + 3, asked.end()};
  }
};

TYPED_TEST_SUITE(MatchMachineTest, Machines, MachineNames);

TYPED_TEST(MatchMachineTest, AFaceOffIsATossAndOneToSixPasses) {
  this->Play({1, 3});
  EXPECT_EQ(this->dice().Rolls(), (std::vector<RollPair>{{2, 1}, {6, 3}}));
  EXPECT_EQ(this->machine().PuckCarrier, this->line1[kCF]);
  EXPECT_EQ(this->machine().PuckTeam, 1);
  EXPECT_EQ(this->machine().PassesLeft, 3);
  EXPECT_EQ(ItemsOf(this->lists().LineList), Reversed(this->line1));
  EXPECT_EQ(ItemsOf(this->lists().DefList), Reversed(this->line2));

  this->Play({2, 6});
  EXPECT_EQ(this->machine().PuckCarrier, this->line2[kCF]);
  EXPECT_EQ(this->machine().PuckTeam, 2);
  EXPECT_EQ(this->machine().PassesLeft, 6);
  EXPECT_EQ(ItemsOf(this->lists().LineList), Reversed(this->line2));
  EXPECT_EQ(ItemsOf(this->lists().DefList), Reversed(this->line1));
}

TYPED_TEST(MatchMachineTest, ACenterOnceFoundTakesThePuckThoughTheLinesAreClearedMeanwhile) {
  for (const int winner : {1, 2}) {
    this->LineUp(LeadLine(1), LeadLine(2));
    for (int yield = 1; yield < 12; ++yield) this->front_end().AtYield([] {});
    this->front_end().AtYield([this] {  // both lines have been walked
      this->lists().Line1Stats.Clear();
      this->lists().Line2Stats.Clear();
    });
    this->Play({winner, 3});
    EXPECT_EQ(this->machine().PuckCarrier, (winner == 1 ? this->line1 : this->line2)[kCF]);
    EXPECT_EQ(this->machine().PuckTeam, winner);
    EXPECT_EQ(this->lists().LineList.ListCount(), 0);
  }
}

TYPED_TEST(MatchMachineTest, AFaceOffLeavesThePuckPositionAlone) {
  this->machine().PuckPosition = "LD";
  this->Play({1, 3});
  EXPECT_EQ(this->machine().PuckPosition, "LD");
}

TYPED_TEST(MatchMachineTest, ForwardsPassByATossAmongTheOtherTwo) {
  const struct {
    const char* from;
    int roll;
    const char* to;
    int place;
  } passes[] = {{"RF", 1, "CF", kCF}, {"RF", 2, "LF", kLF}, {"CF", 1, "RF", kRF},
                {"CF", 2, "LF", kLF}, {"LF", 1, "CF", kCF}, {"LF", 2, "RF", kRF}};
  for (const auto& pass : passes) {
    this->machine().PuckPosition = pass.from;
    this->Play({1, 4, pass.roll});
    EXPECT_EQ(this->dice().Asked(), (Asked{2, 6, 2})) << pass.from;
    EXPECT_EQ(this->machine().PuckPosition, pass.to) << pass.from << pass.roll;
    EXPECT_EQ(this->machine().PuckCarrier, this->line1[static_cast<std::size_t>(pass.place)]);
    EXPECT_EQ(this->machine().PasserName, "cf1");
    EXPECT_EQ(this->machine().PassesLeft, 3);
  }
}

TYPED_TEST(MatchMachineTest, AfterADefencemanTheTossIsRolledAndAnotherRollDecides) {
  const struct {
    int roll;
    const char* to;
  } passes[] = {{1, "LF"}, {2, "CF"}, {3, "RF"}};
  for (const char* from : {"RD", "LD"}) {
    for (const auto& pass : passes) {
      for (const int toss : {1, 2}) {
        this->machine().PuckPosition = from;
        this->Play({2, 1, toss, pass.roll});
        EXPECT_EQ(this->dice().Asked(), (Asked{2, 6, 2, 3}));
        EXPECT_EQ(this->machine().PuckPosition, pass.to) << from << toss << pass.roll;
        EXPECT_EQ(this->machine().PassesLeft, 0);
      }
    }
  }
}

TYPED_TEST(MatchMachineTest, BeforeTheFirstOutletPassThePuckEndsWithTheFirstOfTheLine) {
  ASSERT_EQ(this->machine().PuckPosition, "");
  this->Play({1, 2, 1, 3});
  EXPECT_EQ(this->dice().Asked(), (Asked{2, 6, 2, 3}));
  EXPECT_EQ(this->machine().PuckPosition, "");
  EXPECT_EQ(this->machine().PuckCarrier, this->line1[kGO]);
  EXPECT_EQ(this->machine().PasserName, "cf1");
  EXPECT_EQ(this->machine().PassesLeft, 1);
  // Every pass of the possession goes the same way.
  this->Play({2, 2, 1, 3, 2, 1});
  EXPECT_EQ(this->machine().PuckPosition, "");
  EXPECT_EQ(this->machine().PuckCarrier, this->line2[kGO]);
  EXPECT_EQ(this->machine().PasserName, "go2");
}

TYPED_TEST(MatchMachineTest, ThenTheGoalieShootsWithTheirOwnShooting) {
  Lines line = this->line1;
  line[kGO] = MakeRecord({.name = "go1", .position = "GO", .shooting = 7});
  this->LineUp(line, this->line2);
  this->Play({1, 1, 1, 3, /*shot*/ 1, 8, /*again*/ 1, 7});
  EXPECT_EQ(this->dice().Asked(), (Asked{2, 6, 2, 3, 2, 100, 2, 100}));
}

TYPED_TEST(MatchMachineTest, AFaceOffCenterCanBePassedToHimself) {
  this->machine().PuckPosition = "RF";
  this->Play({1, 1, 1});
  EXPECT_EQ(this->machine().PuckPosition, "CF");
  EXPECT_EQ(this->machine().PuckCarrier, this->line1[kCF]);
  EXPECT_EQ(this->machine().PasserName, "cf1");
}

TYPED_TEST(MatchMachineTest, APassToAPositionThatIsNotThereLeavesThePuckWithItsCarrier) {
  Lines line = this->line1;
  line.erase(line.begin() + kLF);
  this->LineUp(line, this->line2);
  this->machine().PuckPosition = "CF";
  this->Play({1, 2, 2});
  EXPECT_EQ(this->machine().PuckPosition, "LF");
  EXPECT_EQ(this->machine().PuckCarrier, line[kCF]);
  // Nobody is at "LF" now: the next pass names no passer.
  this->machine().PasserName = "nobody";
  this->machine().PuckPosition = "LF";
  this->Play({1, 1, 2});
  EXPECT_EQ(this->machine().PasserName, "nobody");
  EXPECT_EQ(this->machine().PuckPosition, "RF");
  EXPECT_EQ(this->machine().PuckCarrier, line[kRF]);
}

TYPED_TEST(MatchMachineTest, PositionsAreLookedForInTheWholeRecord) {
  Lines line = this->line1;
  line[kLF] = MakeRecord({.name = "MCCFEE", .position = "LF"});
  line[kRD] = MakeRecord({.name = "SURFER", .position = "RD"});
  this->LineUp(line, this->line2);
  this->machine().PuckPosition = "CF";
  // The last of a line stands at the face-off, the first of it takes a pass.
  this->Play({1, 3});
  EXPECT_EQ(this->machine().PuckCarrier, line[kLF]);
  this->Play({1, 3, 1});
  EXPECT_EQ(this->machine().PuckPosition, "RF");
  EXPECT_EQ(this->machine().PuckCarrier, line[kRD]);
}

TYPED_TEST(MatchMachineTest, AShotGoesPastDefenderAndGoalieInSixRolls) {
  this->ShotOfTeam(1, {1, 80, 81, 50, 85, 86});
  EXPECT_EQ(this->AskedInShot(), (Asked{2, 100, 110, 100, 100, 105}));
  EXPECT_EQ(this->Goals(1), 1);
  EXPECT_EQ(this->Goals(2), 0);
  EXPECT_EQ(this->machine().PassesLeft, -2);
  EXPECT_EQ(this->machine().PuckCarrier, this->line1[kRF]);
  EXPECT_EQ(this->machine().PuckTeam, 1);
  EXPECT_EQ(this->machine().PuckPosition, "RF");
  EXPECT_EQ(this->machine().DefenderPosition, "RD");
  EXPECT_EQ(this->machine().Defender, this->line2[kGO]);
}

TYPED_TEST(MatchMachineTest, AGoalOfTheSecondTeamIsItsOwn) {
  this->ShotOfTeam(2, {2, 1, 110, 100, 1, 105});
  EXPECT_EQ(this->Goals(1), 0);
  EXPECT_EQ(this->Goals(2), 1);
  EXPECT_EQ(this->machine().DefenderPosition, "LD");
}

TYPED_TEST(MatchMachineTest, AGoalIsFollowedByAFaceOff) {
  this->ShotOfTeam(1, {1, 80, 81, 50, 85, 86, /*face-off*/ 2, 5});
  EXPECT_EQ(this->AskedInShot(), (Asked{2, 100, 110, 100, 100, 105, 2, 6}));
  EXPECT_EQ(this->machine().PuckCarrier, this->line2[kCF]);
  EXPECT_EQ(this->machine().PassesLeft, 5);
  EXPECT_EQ(this->machine().PuckPosition, "RF");
}

TYPED_TEST(MatchMachineTest, AMissChangesNothingButTheDefenderMet) {
  this->ShotOfTeam(1, {1, 81, 2, 100});
  EXPECT_EQ(this->AskedInShot(), (Asked{2, 100, 2, 100}));
  EXPECT_EQ(this->machine().PassesLeft, 0);
  EXPECT_EQ(this->machine().PuckCarrier, this->line1[kRF]);
  EXPECT_EQ(this->machine().PuckTeam, 1);
  EXPECT_EQ(this->machine().DefenderPosition, "LD");
  EXPECT_EQ(this->machine().Defender, this->line2[kLD]);
}

TYPED_TEST(MatchMachineTest, AShotThatTheGoalieLetsSlipIsShotAgain) {
  this->ShotOfTeam(1, {1, 80, 81, 50, 86, /*again*/ 1, 100});
  EXPECT_EQ(this->AskedInShot(), (Asked{2, 100, 110, 100, 100, 2, 100}));
  EXPECT_EQ(this->Goals(1), 0);
  EXPECT_EQ(this->machine().PassesLeft, 0);
  EXPECT_EQ(this->machine().PuckCarrier, this->line1[kRF]);
}

TYPED_TEST(MatchMachineTest, TheGoalieStaysTheDefenderUntilTheNextShot) {
  // Stopped at the roll for the side: the last shot had met the goalie.
  this->ShotOfTeam(1, {1, 80, 81, 50, 86});
  EXPECT_EQ(this->machine().Defender, this->line2[kGO]);
}

TYPED_TEST(MatchMachineTest, ADefenderStealsThePuck) {
  for (const int side : {1, 2}) {
    this->ShotOfTeam(1, {side, 80, 80});
    EXPECT_EQ(this->AskedInShot(), (Asked{2, 100, 110}));
    EXPECT_EQ(this->machine().PuckCarrier, this->line2[side == 1 ? kRD : kLD]);
    EXPECT_EQ(this->machine().PuckTeam, 2);
    EXPECT_EQ(this->machine().PassesLeft, -1);
    EXPECT_EQ(this->machine().PuckPosition, "RF");
    EXPECT_EQ(ItemsOf(this->lists().LineList), Reversed(this->line2));
  }
  this->ShotOfTeam(2, {1, 80, 80});
  EXPECT_EQ(this->machine().PuckCarrier, this->line1[kRD]);
  EXPECT_EQ(this->machine().PuckTeam, 1);
}

TYPED_TEST(MatchMachineTest, ATurnoverNamesThePasserAndTheOutletNamesThemAgainIfItCan) {
  this->ShotOfTeam(1, {1, 80, 80});
  EXPECT_EQ(this->machine().PasserName, "rd2");  // team 2 has somebody at "RF"
  Lines line = this->line2;
  line.erase(line.begin() + kRF);
  this->LineUp(this->line1, line);
  this->ShotOfTeam(1, {1, 80, 80});
  EXPECT_EQ(this->machine().PasserName, "rf1");
}

TYPED_TEST(MatchMachineTest, ADefencemanWithThePuckPassesToAForward) {
  const int places[] = {kRF, kCF, kLF};
  const char* const positions[] = {"RF", "CF", "LF"};
  for (const int roll : {1, 2, 3}) {
    this->ShotOfTeam(1, {1, 80, 80, /*outlet*/ roll, 4});
    EXPECT_EQ(this->AskedInShot(), (Asked{2, 100, 110, 3, 4}));
    EXPECT_EQ(this->machine().PuckPosition, positions[roll - 1]);
    EXPECT_EQ(this->machine().PuckCarrier, this->line2[static_cast<std::size_t>(places[roll - 1])]);
    EXPECT_EQ(this->machine().PasserName, "rd2");
    EXPECT_EQ(this->machine().PassesLeft, 4);
  }
}

TYPED_TEST(MatchMachineTest, AGoalieWithThePuckPassesToADefenceman) {
  for (const int roll : {1, 2}) {
    this->ShotOfTeam(1, {1, 80, 81, 50, 85, 85, /*outlet*/ roll, 1});
    EXPECT_EQ(this->AskedInShot(), (Asked{2, 100, 110, 100, 100, 105, 2, 4}));
    EXPECT_EQ(this->machine().PuckPosition, roll == 1 ? "RD" : "LD");
    EXPECT_EQ(this->machine().PuckCarrier, this->line2[roll == 1 ? kRD : kLD]);
    EXPECT_EQ(this->machine().PasserName, "go2");
    EXPECT_EQ(this->machine().PassesLeft, 1);
    EXPECT_EQ(this->machine().PuckTeam, 2);
    EXPECT_EQ(this->Goals(1), 0);
  }
}

TYPED_TEST(MatchMachineTest, AShorterSecondLineLeavesEmptyPlacesAndStealsNothing) {
  const std::string goalie = this->line2[kGO];
  const std::string center = this->line2[kCF];
  this->LineUp(this->line1, {goalie, center});
  this->ShotOfTeam(1, {1, 80, /*defender*/ 1, 50, 85, 86});
  EXPECT_EQ(this->Goals(1), 1);
  this->Play({1, 3});
  EXPECT_EQ(ItemsOf(this->lists().DefList), (Lines{"", "", "", "", center, goalie}));
  // With the short team on the puck both lists are short.
  this->Play({2, 3});
  EXPECT_EQ(ItemsOf(this->lists().LineList), (Lines{center, goalie}));
  EXPECT_EQ(ItemsOf(this->lists().DefList), (Lines{this->line1[kRD], this->line1[kGO]}));
}

TYPED_TEST(MatchMachineTest, WithoutAGoalieTheDefencemanStandsInTheGoal) {
  Lines line = this->line2;
  line.erase(line.begin());
  line[kRD - 1] = MakeRecord({.name = "rd2", .position = "RD", .defense = 40});
  this->LineUp(this->line1, line);
  this->ShotOfTeam(1, {1, 80, 41, 50, 41});
  EXPECT_EQ(this->machine().PassesLeft, 0);
  this->ShotOfTeam(1, {1, 80, 41, 50, 40, 40, /*outlet of a skater*/ 2, 2});
  EXPECT_EQ(this->AskedInShot(), (Asked{2, 100, 110, 100, 100, 105, 3, 4}));
  EXPECT_EQ(this->machine().PuckPosition, "CF");
}

TYPED_TEST(MatchMachineTest, ARatingThatIsNotANumberEndsTheProgram) {
  Lines line = this->line1;
  line[kRF] = "rf1,RF,80,80,high,80,80,20,N";
  this->LineUp(line, this->line2);
  this->machine().PuckPosition = "CF";
  this->dice().Give({1, 1, 1, 1, 50});
  EXPECT_THROW(this->PlayOn(), RuntimeError);

  line[kRF] = this->line2[kRF];
  Lines other = this->line2;
  other[kRD] = "rd2,RD,80,80,80,,80,20,N";
  this->LineUp(line, other);
  this->machine().PuckPosition = "CF";
  this->dice().Give({1, 1, 1, 1});
  EXPECT_THROW(this->PlayOn(), RuntimeError);
}

TYPED_TEST(MatchMachineTest, RatingsThatNobodyNeedsMayBeAnything) {
  Lines line = this->line1;
  line[kCF] = "cf1,CF,,,,,,,N";
  this->LineUp(line, this->line2);
  this->machine().PuckPosition = "CF";
  this->Play({1, 2, 1});
  EXPECT_EQ(this->machine().PuckCarrier, this->line1[kRF]);
}

// Yields of one walk over a line of six.
constexpr int kWalk = 6;

TYPED_TEST(MatchMachineTest, EveryWalkYieldsForEachRecord) {
  const auto yields = [this](std::initializer_list<int> rolls) {
    this->machine().PuckPosition = "CF";
    const auto before = this->front_end().Yields();
    this->Play(rolls);
    return this->front_end().Yields() - before;
  };
  // Two centers and the ice lists; then the next step has set its lists when it asks.
  constexpr int kFaceOff = 3 * kWalk;
  constexpr int kStep = TestFixture::kStepYields;
  EXPECT_EQ(yields({1, 4}), kFaceOff + kWalk);
  // A pass: lists, passers, carriers.
  EXPECT_EQ(yields({1, 4, 1}), kFaceOff + 3 * kWalk + kStep + kWalk);
  constexpr int kToShot = kFaceOff + 3 * kWalk + kStep;
  // A shot sets the lists once more. A miss: lists twice, defenders.
  EXPECT_EQ(yields({1, 1, 1, 1, 100}), kToShot + 3 * kWalk + kStep + 2 * kWalk);
  // A steal: that and lists; the outlet asks after its lists, twice too, and passers.
  EXPECT_EQ(yields({1, 1, 1, 1, 1, 1}), kToShot + 4 * kWalk + kStep + 3 * kWalk);
  EXPECT_EQ(yields({1, 1, 1, 1, 1, 1, 1, 1}),
            kToShot + 4 * kWalk + kStep + 4 * kWalk + kStep + kWalk);
  // A goal: lists twice, defenders, goalies; the face-off asks after lists and centers.
  EXPECT_EQ(yields({1, 1, 1, 1, 1, 110, 1, 1, 105}), kToShot + 4 * kWalk + kStep + 3 * kWalk);
}

}  // namespace
}  // namespace frostmark::test
