#include "development/league_moves.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <filesystem>

#include "tests/support/game_fixture.h"

// A season's end that is cut off, or that may not move a file: the leagues keep six teams each, and
// no team is lost or double.
namespace frostmark::test {
namespace {

namespace fs = std::filesystem;

class LeagueMovesTest : public GameFixture {
 protected:
  void SetUp() override {
    world.FillWorld();
    TakeOver("Rank C", "C0 Wolves");
    franchise().NextWeek.SetCaption("Week 8");
    franchise().SaveGame();
  }

  // Number 0 of each league goes up, number 5 down.
  static LeagueMoves::Borders FirstsAndLasts() {
    LeagueMoves::Borders borders;
    for (std::size_t border = 0; border < kBorders; ++border) {
      borders[border] = {WolvesOf(kRanks[border], 0), WolvesOf(kRanks[border + 1], 5)};
    }
    return borders;
  }
  LeagueMoves Moves() { return {ordvik(), FirstsAndLasts(), {6, 6, 6, 6, 6, 6}}; }

  // The first COUNT moves of a season's end, in its order.
  static void Make(LeagueMoves& moves, int count) {
    for (std::size_t league = 0; league < kRanks.size(); ++league) {
      if (league < kBorders && count-- > 0) moves.MoveUp(league);
      if (league > 0 && count-- > 0) moves.MoveDown(league - 1);
    }
  }
  std::vector<Lines> Leagues() const {
    std::vector<Lines> leagues;
    for (const char* rank : kRanks) leagues.push_back(world.FileNames(rank));
    return leagues;
  }
  void Refill() {
    for (const char* rank : kRanks) {
      for (const std::string& team : world.FileNames(rank)) fs::remove(world.TeamPath(rank, team));
    }
    world.FillWorld();
  }
  void ExpectSixTeamsALeague() {
    Lines all;
    for (const Lines& league : Leagues()) {
      EXPECT_EQ(league.size(), 6U);
      all.insert(all.end(), league.begin(), league.end());
    }
    std::sort(all.begin(), all.end());
    EXPECT_EQ(std::unique(all.begin(), all.end()), all.end());
  }
  bool IsPlanned() const { return fs::exists(world.SettingsPath("unfinished.moves")); }
  bool LiesIn(const std::string& team, const char* rank) const {
    return fs::exists(world.TeamPath(rank, team));
  }
};

TEST_F(LeagueMovesTest, AreFinishedByTheNextLoadWhereverTheyWereCutOff) {
  LeagueMoves whole = Moves();
  Make(whole, 10);
  const std::vector<Lines> after = Leagues();
  for (int made = 0; made <= 10; ++made) {
    SCOPED_TRACE(made);
    Refill();
    Restart();
    LeagueMoves moves = Moves();
    moves.WriteDown();
    Make(moves, made);
    ASSERT_TRUE(IsPlanned());
    Restart();
    startup().PressLoad();
    EXPECT_EQ(Leagues(), after);
    EXPECT_FALSE(IsPlanned());
    ASSERT_TRUE(franchise().Visible());
    EXPECT_EQ(franchise().MyRank.Caption(), "Rank B");
    for (const ListBox* names : franchise().RankLists()) EXPECT_EQ(names->ListCount(), 6);
    EXPECT_EQ(world.SettingsNames().size(), 8U);
  }
}

// The longest gap of all: the loser of "Rank A" moves only after the congratulation.
TEST_F(LeagueMovesTest, AreFinishedByNewAsWell) {
  LeagueMoves moves = Moves();
  moves.WriteDown();
  Make(moves, 9);
  Restart();
  front_end().QueueAnswer("no");
  startup().PressNew();
  ExpectSixTeamsALeague();
  EXPECT_FALSE(IsPlanned());
}

TEST_F(LeagueMovesTest, OfAWorldThatIsBuiltOverAreForgotten) {
  LeagueMoves moves = Moves();
  moves.WriteDown();
  dice().KeepRolls(false);
  startup().BuildLeague();
  EXPECT_FALSE(IsPlanned());
}

TEST_F(LeagueMovesTest, AreWrittenDownBeforeTheFirstAndGoneAfterTheLast) {
  front_end().AtYield([this] { EXPECT_FALSE(IsPlanned()); });
  franchise().theOffSeason();
  EXPECT_EQ(world.SettingsNames().size(), 8U);
}

// A folder in a team's place cannot be moved over, whoever asks.
TEST_F(LeagueMovesTest, ATeamThatMayNotMoveKeepsItsPartnerToo) {
  for (const bool up : {true, false}) {
    SCOPED_TRACE(up);
    Refill();
    const std::string obstacle =
        up ? world.TeamPath("Rank B", "C0 Wolves") : world.TeamPath("Rank C", "B5 Wolves");
    fs::create_directory(obstacle);
    franchise().LoadNewTeams();
    franchise().theOffSeason();
    fs::remove(obstacle);
    ExpectSixTeamsALeague();
    EXPECT_TRUE(LiesIn("C0 Wolves", "Rank C"));
    EXPECT_TRUE(LiesIn("B5 Wolves", "Rank B"));
    EXPECT_TRUE(LiesIn("A5 Wolves", "Rank B"));
    EXPECT_EQ(franchise().MyRank.Caption(), "Rank C");
    EXPECT_FALSE(program().f_results.crossed[3]);
    EXPECT_TRUE(program().f_results.Visible());
    EXPECT_FALSE(IsPlanned());
  }
}

TEST_F(LeagueMovesTest, APlanThatIsForeignMovesNothingOutsideTheLeagues) {
  WriteText(world.path() + "/letter", "to a friend");
  const std::vector<Lines> before = Leagues();
  for (const char* plan :
       {"frostmark moves\n0\n../../letter\nE5 Wolves\nend\n",
        "frostmark moves\n9\nF0 Wolves\nX\nend\n", "frostmark moves\n0\nF0 Wolves\n", "nonsense",
        "frostmark moves\n0\n..\n.\nend\n", "frostmark moves\n0\nNobody\nE5 Wolves\nend\n"}) {
    WriteText(world.SettingsPath("unfinished.moves"), plan);
    Restart();
    startup().PressLoad();
    EXPECT_EQ(Leagues(), before) << plan;
    EXPECT_TRUE(franchise().Visible()) << plan;
    EXPECT_FALSE(IsPlanned()) << plan;
  }
  EXPECT_EQ(ReadText(world.path() + "/letter"), "to a friend");
}

TEST_F(LeagueMovesTest, AProgramsFolderThatHoldsALeaguesNameDoesNoHarm) {
  const std::string folder = world.path() + "/my Rank F games";
  fs::create_directory(folder);
  for (const char* name : {"Teams", "Settings"}) {
    fs::copy(world.path() + "/" + name, folder + "/" + name, fs::copy_options::recursive);
  }
  Session other(folder);
  other.program.startup.PressLoad();
  other.program.franchise.theOffSeason();
  EXPECT_TRUE(fs::exists(folder + "/Teams/Rank E/F0 Wolves"));
  EXPECT_TRUE(fs::exists(folder + "/Teams/Rank F/E5 Wolves"));
}

}  // namespace
}  // namespace frostmark::test
