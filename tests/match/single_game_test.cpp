#include "tests/support/game_fixture.h"

namespace frostmark::test {
namespace {

class SingleGameTest : public GameFixture {
 protected:
  SingleGameTest() {
    world.FillWorld();
    program().Start();
    startup().HighButton1.Click();
  }
  FStartGame& screen() { return program().f_start_game; }
  Game& game() { return program().game; }
};

TEST_F(SingleGameTest, TheScreenStartsAsDesigned) {
  EXPECT_TRUE(screen().Visible());
  EXPECT_FALSE(startup().Visible());
  EXPECT_EQ(screen().Caption(), "Choose Teams");
  EXPECT_EQ(screen().Label1.Caption(),
            "Choose your team...                    Choose your opponent....");
  const Lines leagues = {"Rank F", "Rank E", "Rank D", "Rank C", "Rank B", "Rank A"};
  EXPECT_EQ(ItemsOf(screen().List3), leagues);
  EXPECT_EQ(ItemsOf(screen().List4), leagues);
  EXPECT_EQ(screen().HighButton1.Caption(), "Begin");
  EXPECT_FALSE(screen().List1.Visible());
  EXPECT_FALSE(screen().List2.Visible());
  // "Teams" holds folders and no files.
  EXPECT_EQ(screen().File1.ListCount(), 0);
  EXPECT_EQ(screen().File2.ListCount(), 0);
}

TEST_F(SingleGameTest, ALeagueShowsItsTeamsInItsOwnColumn) {
  screen().List3.Select(2);
  EXPECT_EQ(screen().File1.Path(), world.path() + "/Teams/Rank D");
  EXPECT_EQ(ItemsOf(screen().File1),
            (Lines{"D0 Wolves", "D1 Wolves", "D2 Wolves", "D3 Wolves", "D4 Wolves", "D5 Wolves"}));
  EXPECT_EQ(screen().File2.ListCount(), 0);
  screen().List4.Select(5);
  EXPECT_EQ(screen().File2.List(0), "A0 Wolves");
  EXPECT_EQ(screen().File1.List(0), "D0 Wolves");
}

TEST_F(SingleGameTest, ATeamIsLoadedAgainAtEachClick) {
  screen().List3.Select(0);
  screen().File1.Select(3);
  EXPECT_EQ(ItemsOf(screen().List1), ReadLines(world.TeamPath("Rank F", "F3 Wolves")));
  EXPECT_EQ(screen().List2.ListCount(), 0);
  screen().File1.Select(4);
  EXPECT_EQ(ItemsOf(screen().List1), ReadLines(world.TeamPath("Rank F", "F4 Wolves")));
  screen().List4.Select(1);
  screen().File2.Select(0);
  EXPECT_EQ(ItemsOf(screen().List2), ReadLines(world.TeamPath("Rank E", "E0 Wolves")));
}

TEST_F(SingleGameTest, AnotherLeagueLeavesTheRosterAsItIs) {
  screen().List3.Select(0);
  screen().File1.Select(3);
  const Lines roster = ItemsOf(screen().List1);
  screen().List3.Select(1);
  EXPECT_EQ(screen().File1.ListIndex(), -1);
  EXPECT_EQ(ItemsOf(screen().List1), roster);
}

TEST_F(SingleGameTest, BeginAsksForTheTeamsThatAreMissing) {
  const auto refusal = [this] {
    screen().HighButton1.Click();
    EXPECT_FALSE(game().Visible());
    EXPECT_TRUE(screen().Visible());
    const MessageBox& box = front_end().Boxes().back();
    EXPECT_EQ(box.icon, BoxIcon::kStop);
    EXPECT_EQ(box.buttons, BoxButtons::kOk);
    return box.text;
  };
  EXPECT_EQ(refusal(), "Please select two teams!");
  screen().List4.Select(0);
  screen().File2.Select(0);
  EXPECT_EQ(refusal(), "Please select a vistor team!");
  screen().List2.Clear();
  screen().List3.Select(0);
  screen().File1.Select(0);
  EXPECT_EQ(refusal(), "Please select a home team!");
  EXPECT_EQ(front_end().Boxes().size(), 3U);
}

TEST_F(SingleGameTest, BeginSetsUpAMatchThatIsNoneOfTheFranchises) {
  game().FranchiseMatch = true;
  screen().List3.Select(0);
  screen().File1.Select(3);
  screen().List4.Select(5);
  screen().File2.Select(1);
  const Lines before = world.Everything();
  front_end().AtYield([this] { EXPECT_FALSE(game().FranchiseMatch); });
  screen().HighButton1.Click();
  EXPECT_TRUE(front_end().Boxes().empty());
  EXPECT_FALSE(game().FranchiseMatch);
  EXPECT_TRUE(game().Visible());
  EXPECT_FALSE(screen().Visible());
  EXPECT_EQ(game().GHome.Caption(), "F3 Wolves");
  EXPECT_EQ(game().GVisitor.Caption(), "A1 Wolves");
  EXPECT_EQ(game().Line1Stats.List(0), screen().List1.List(0));
  EXPECT_EQ(game().Line2Stats.List(0), screen().List2.List(0));

  for (int period = 0; period < 3; ++period) {
    game().HighButton1.Click();
    front_end().PassTime(std::chrono::milliseconds(100 * 201));
  }
  game().HighButton2.Click();
  EXPECT_TRUE(startup().Visible());
  EXPECT_FALSE(game().FranchiseMatch);
  EXPECT_EQ(franchise().Alerts.ListCount(), 0);
  EXPECT_TRUE(world.Everything() == before);
}

TEST_F(SingleGameTest, ASecondGameNeedsNoNewChoice) {
  screen().List3.Select(0);
  screen().File1.Select(3);
  screen().List4.Select(0);
  screen().File2.Select(3);
  screen().HighButton1.Click();
  EXPECT_EQ(game().GHome.Caption(), game().GVisitor.Caption());
  game().Label5.Click();
  // The start screen points both file lists at "Teams" again, where nothing is selected.
  startup().HighButton1.Click();
  screen().HighButton1.Click();
  EXPECT_TRUE(front_end().Boxes().empty());
  EXPECT_EQ(game().GHome.Caption(), "");
  EXPECT_EQ(game().GVisitor.Caption(), "");
  EXPECT_EQ(game().Line1Stats.ListCount(), 6);
}

TEST_F(SingleGameTest, TheCloseMarkGoesBackToTheStartScreen) {
  screen().Label2.Click();
  EXPECT_FALSE(screen().Visible());
  EXPECT_TRUE(startup().Visible());
}

TEST_F(SingleGameTest, TheGameIsNotTheFranchisesBeforeItIsSetUp) {
  screen().List3.Select(0);
  screen().File1.Select(0);
  screen().List4.Select(1);
  screen().File2.Select(1);
  game().FranchiseMatch = true;
  int looks = 0;
  for (int yield = 0; yield < 22; ++yield) {
    front_end().AtYield([&] {
      ++looks;
      EXPECT_FALSE(game().FranchiseMatch);
      EXPECT_EQ(game().GHome.Caption(), "F0 Wolves");
      EXPECT_EQ(game().GVisitor.Caption(), "E1 Wolves");
      EXPECT_FALSE(game().Visible());
      EXPECT_TRUE(screen().Visible());
    });
  }
  screen().HighButton1.Click();
  EXPECT_EQ(looks, 22);
}

}  // namespace
}  // namespace frostmark::test
