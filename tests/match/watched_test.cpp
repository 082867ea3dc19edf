#include "records/runtime_error.h"
#include "tests/match/match_scene.h"

// Where the watched machine differs from the unwatched one: what it reports, what it keeps as text,
// and how it treats a line without a center.

namespace frostmark::test {
namespace {

enum { kGO, kRD, kLD, kRF, kCF, kLF };

using Asked = std::vector<int>;

class WatchedMatchTest : public MatchMachine<Game> {
 protected:
  Game& game() { return program().game; }

  // The play-by-play, newest first, without the lines at the bottom.
  Lines Reports() {
    Lines reports;
    for (const std::string& line : ItemsOf(game().Events)) {
      if (line != "End of the first period!") reports.push_back(line);
    }
    return reports;
  }
  Lines ReportsOf(const std::string& position, std::initializer_list<int> rolls) {
    game().Events.Clear();
    game().PuckPosition = position;
    Play(rolls);
    return Reports();
  }
};

TEST_F(WatchedMatchTest, AFaceOffIsReportedBeforeThePassesAreRolled) {
  dice().Give({2, 0});
  EXPECT_THROW(game().PressStart(), std::logic_error);
  EXPECT_EQ(Reports(), Lines{"cf2 wins the face off!"});
}

TEST_F(WatchedMatchTest, NoRightForwardStandsInForAMissingCenter) {
  line2.erase(line2.begin() + kCF);
  LineUp(line1, line2);
  const auto before = front_end().Yields();
  dice().Give({2, 3});
  game().PressStart();
  EXPECT_EQ(front_end().Yields() - before,
            6 + 5 + 5);  // two walks and the ice lists, no third walk
  EXPECT_EQ(game().PuckCarrier, "");
  EXPECT_EQ(Reports(), Lines{" wins the face off!"});
  EXPECT_EQ(game().PassesLeft, 3);
}

TEST_F(WatchedMatchTest, NobodyPassesLikeAnybody) {
  line2.erase(line2.begin() + kCF);
  LineUp(line1, line2);
  EXPECT_EQ(ReportsOf("LF", {2, 3, /*pass*/ 2}),
            (Lines{" passes it to rf2", " wins the face off!"}));
  EXPECT_EQ(dice().Asked(), (Asked{2, 6, 2}));
  EXPECT_EQ(game().PasserName, "");
  EXPECT_EQ(game().PassesLeft, 2);
}

TEST_F(WatchedMatchTest, AShotByNobodyEndsTheProgram) {
  line2.erase(line2.begin() + kCF);
  LineUp(line1, line2);
  game().PuckPosition = "LF";
  dice().Give({2, 1, /*pass to "CF"*/ 1, /*shot*/ 1, 100});
  EXPECT_THROW(PlayOn(), RuntimeError);
  EXPECT_EQ(dice().LeftOver(), 0U);  // the shot is rolled before their Shooting is read
}

TEST_F(WatchedMatchTest, APassIsReported) {
  EXPECT_EQ(ReportsOf("CF", {1, 2, 1}), (Lines{"cf1 passes it to rf1", "cf1 wins the face off!"}));
}

TEST_F(WatchedMatchTest, BeforeTheFirstOutletPassSixPassesAreReportedAtOnce) {
  EXPECT_EQ(ReportsOf("", {1, 2, 1, 3}),
            (Lines{"cf1 passes it to go1", "cf1 passes it to rd1", "cf1 passes it to ld1",
                   "cf1 passes it to rf1", "cf1 passes it to cf1", "cf1 passes it to lf1",
                   "cf1 wins the face off!"}));
  EXPECT_EQ(game().PuckCarrier, line1[kGO]);
}

TEST_F(WatchedMatchTest, AStealIsReportedBeforeThePuckChangesHands) {
  const Lines reports = ReportsOf("CF", {1, 1, 1, /*shot*/ 1, 80, 80});
  EXPECT_EQ(reports.front(), "rd2 steals the puck from rf1");
  EXPECT_EQ(reports.size(), 3U);
}

TEST_F(WatchedMatchTest, AnOutletPassIsReportedInItsOwnWords) {
  const Lines reports = ReportsOf("CF", {1, 1, 1, /*shot*/ 1, 80, 80, /*outlet*/ 3, 1});
  EXPECT_EQ(reports.front(), "rd2 passes the puck to lf2");
  EXPECT_EQ(reports.size(), 4U);
}

TEST_F(WatchedMatchTest, ASaveIsReported) {
  const Lines reports = ReportsOf("CF", {1, 1, 1, /*shot*/ 1, 80, 81, 50, 85, 85});
  EXPECT_EQ(reports.front(), "go2 blocks a shot from rf1");
  EXPECT_EQ(reports.size(), 3U);
}

TEST_F(WatchedMatchTest, MissesAreNotReported) {
  EXPECT_EQ(ReportsOf("CF", {1, 1, 1, 1, 81}).size(), 2U);
  EXPECT_EQ(ReportsOf("CF", {1, 1, 1, 1, 80, 81, 50, 86}).size(), 2U);
}

TEST_F(WatchedMatchTest, AGoalIsReportedWithItsAssist) {
  const Lines reports = ReportsOf("CF", {1, 1, 1, 1, 80, 81, 50, 85, 86});
  EXPECT_EQ(reports.front(), "rf1 SCORES! Assist by: cf1");
  EXPECT_EQ(reports.size(), 3U);
}

TEST_F(WatchedMatchTest, AGoalFromAFaceOffNamesAnOldPasser) {
  line1.erase(line1.begin() + kLF);
  LineUp(line1, line2);
  game().PasserName = "somebody of old";
  // The pass finds nobody at "LF" before it, and nobody is passed from: only the position moves.
  game().PuckPosition = "LF";
  dice().Give({1, 1, 1, 1, 80, 81, 50, 85, 86, 0});
  EXPECT_THROW(PlayOn(), std::logic_error);
  EXPECT_EQ(Reports().front(), "cf1 SCORES! Assist by: somebody of old");
}

TEST_F(WatchedMatchTest, TheScoreIsKeptInTheCaptions) {
  game().Label3.SetCaption("9");
  game().Label4.SetCaption("");
  game().PuckPosition = "CF";
  Play({1, 1, 1, 1, 80, 81, 50, 85, 86});
  EXPECT_EQ(game().Label3.Caption(), "10");
  game().PuckPosition = "CF";
  Play({2, 1, 1, 1, 80, 81, 50, 85, 86});
  EXPECT_EQ(game().Label4.Caption(), "1");
  EXPECT_EQ(game().Label3.Caption(), "10");
  EXPECT_EQ(franchise().Score1, 0);
  EXPECT_EQ(program().game_simulation.GoalsTeam1, 0);
}

TEST_F(WatchedMatchTest, TheTwoMachinesShareNothing) {
  game().PuckPosition = "CF";
  Play({1, 1, 1, 1, 80, 80});
  const GameSimulation& other = program().game_simulation;
  EXPECT_EQ(other.PuckPosition, "");
  EXPECT_EQ(other.PuckCarrier, "");
  EXPECT_EQ(other.Defender, "");
  EXPECT_EQ(other.PuckTeam, 0);
  EXPECT_EQ(franchise().LineList.ListCount(), 0);
}

}  // namespace
}  // namespace frostmark::test
