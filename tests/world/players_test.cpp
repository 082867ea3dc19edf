#include <gtest/gtest.h>

#include <filesystem>

#include "tests/support/game_fixture.h"

namespace frostmark::test {
namespace {

class PlayersTest : public GameFixture {
 protected:
  TeamCreator& creator() { return program().team_creator; }
  static int Number(const std::string& record, const char* field) {
    return std::stoi(HockeyNaming::GetField(record, field));
  }
};

TEST_F(PlayersTest, ScreenStartsWithItsListsAndCaptions) {
  EXPECT_EQ(creator().List2.ListCount(), 1219);
  EXPECT_EQ(creator().List2.List(0), "JAMES");
  EXPECT_EQ(creator().List3.ListCount(), 3653);
  EXPECT_EQ(creator().List3.List(3652), "BROCKMA");
  EXPECT_EQ(ItemsOf(creator().List4), (Lines{"GO", "RD", "LD", "RF", "CF", "LF"}));
  EXPECT_EQ(creator().List1.ListCount(), 0);
  EXPECT_EQ(creator().Label1.Caption(), "City:");
  EXPECT_EQ(creator().Text1.Text(), "Denver");
  EXPECT_EQ(creator().Label2.Caption(), "Name:");
  EXPECT_EQ(creator().Text2.Text(), "Skeletons");
  EXPECT_EQ(creator().Label3.Caption(), "Position:");
  EXPECT_EQ(creator().Combo1.Text(), "Select Rank");
  EXPECT_EQ(creator().Combo1.Items(),
            (Lines{"Rank F", "Rank E", "Rank D", "Rank C", "Rank B", "Rank A"}));
  EXPECT_EQ(creator().Command2.Caption(), "Generate");
  EXPECT_EQ(creator().Command1.Caption(), "Save");
  EXPECT_EQ(creator().Label4.Caption(),
            "Offense                      Defense                   Overall");
  for (const Label* label : {&creator().Label5, &creator().Label6, &creator().Label7}) {
    EXPECT_EQ(label->Caption(), "0");
  }
  EXPECT_FALSE(creator().Visible());
}

TEST_F(PlayersTest, RatingsAreRolledInOrder) {
  dice().Give({1, 11, 21, 30, 7});
  naming().GenPlayerRatings("CF", false);
  EXPECT_EQ(dice().Asked(), (std::vector<int>{30, 30, 30, 30, 7}));
  EXPECT_EQ(naming().CurPassing, 99);
  EXPECT_EQ(naming().CurShooting, 89);
  EXPECT_EQ(naming().CurDefense, 79);
  EXPECT_EQ(naming().CurAgility, 70);
  EXPECT_EQ(naming().CurAge, 18);
  EXPECT_EQ(naming().CurOverall, 86);
}

TEST_F(PlayersTest, AWeakerPlayerIsFiveWorseAndNotOlder) {
  dice().Give({1, 11, 21, 30, 1});
  naming().GenPlayerRatings("CF", true);
  EXPECT_EQ(naming().CurPassing, 94);
  EXPECT_EQ(naming().CurShooting, 84);
  EXPECT_EQ(naming().CurDefense, 74);
  EXPECT_EQ(naming().CurAgility, 65);
  EXPECT_EQ(naming().CurAge, 24);
}

TEST_F(PlayersTest, RatingsTouchNeitherNamePositionNorTraining) {
  naming().CurName = "name";
  naming().CurPosition = "position";
  naming().CurTraining = "training";
  naming().GenPlayerRatings("GO", false);
  EXPECT_EQ(naming().CurName, "name");
  EXPECT_EQ(naming().CurPosition, "position");
  EXPECT_EQ(naming().CurTraining, "training");
}

TEST_F(PlayersTest, OverallOfAGoalieIgnoresShootingAndAgility) {
  dice().Give({30, 1, 29, 1, 1});  // Passing 70, Defense 71: 70.5 goes to the even number
  naming().GenPlayerRatings("GO", false);
  EXPECT_EQ(naming().CurOverall, 70);
}

TEST_F(PlayersTest, APositionThatIsNoneKeepsTheOverall) {
  naming().CurOverall = 42;
  naming().GenPlayerRatings("XX", false);
  EXPECT_EQ(naming().CurOverall, 42);
}

TEST_F(PlayersTest, SkillsAndAgesStayWithinTheirRanges) {
  for (const bool weaker : {false, true}) {
    for (const int roll : {1, 30}) {
      dice().ThenAlways(roll);
      naming().GenPlayerRatings("CF", weaker);
      const int best = weaker ? 94 : 99;
      const int skill = roll == 1 ? best : best - 29;
      EXPECT_EQ(naming().CurPassing, skill);
      EXPECT_EQ(naming().CurShooting, skill);
      EXPECT_EQ(naming().CurDefense, skill);
      EXPECT_EQ(naming().CurAgility, skill);
      EXPECT_EQ(naming().CurAge, roll == 1 ? 24 : 18);
    }
  }
}

TEST_F(PlayersTest, ANameIsAGivenNameAndAFamilyName) {
  dice().Give({2, 1});
  EXPECT_EQ(naming().GenPlayerName(), "Robert Johnson");
  EXPECT_EQ(dice().Asked(), (std::vector<int>{1218, 3652}));
}

TEST_F(PlayersTest, OnlyTheFirstLetterStaysACapital) {
  int mcdonald = 0;
  while (creator().List3.List(mcdonald) != "MCDONALD") ++mcdonald;
  dice().Give({1, mcdonald});
  EXPECT_EQ(naming().GenPlayerName(), "John Mcdonald");
}

TEST_F(PlayersTest, TheFirstNamesAreNeverDrawnAndTheLastAre) {
  dice().ThenAlways(1);
  EXPECT_EQ(naming().GenPlayerName(), "John Johnson");
  dice().ThenAlways(32767);
  EXPECT_EQ(naming().GenPlayerName(), "Alonso Brockma");
}

TEST_F(PlayersTest, ATeamHasElevenPlayersInRosterOrder) {
  creator().GenTeam();
  const Lines team = ItemsOf(creator().List1);
  ASSERT_EQ(team.size(), 11U);
  const Lines positions = {"GO", "RD", "LD", "RF", "CF", "LF", "RD", "LD", "RF", "CF", "LF"};
  for (std::size_t i = 0; i < team.size(); ++i) {
    EXPECT_EQ(HockeyNaming::GetField(team[i], "Position"), positions[i]);
    EXPECT_EQ(HockeyNaming::GetField(team[i], "Training"), i < 6 ? "N" : "Y");
    // Nine fields, and the Overall is the one that a change would compute.
    EXPECT_EQ(std::count(team[i].begin(), team[i].end(), ','), 8);
    EXPECT_EQ(naming().SetField(team[i], "Age", "0"), team[i]);
  }
}

TEST_F(PlayersTest, EachPlayerOfATeamTakesSevenRollsAndAYield) {
  const auto yields = front_end().Yields();
  creator().GenTeam();
  std::vector<int> expected;
  for (int player = 0; player < 11; ++player) {
    expected.insert(expected.end(), {1218, 3652, 30, 30, 30, 30, 7});
  }
  EXPECT_EQ(dice().Asked(), expected);
  EXPECT_EQ(front_end().Yields() - yields, 11 + 11);  // the players, then their rating
}

TEST_F(PlayersTest, AGeneratedRecordHoldsWhatWasRolled) {
  dice().Give({1, 1, 10, 11, 12, 13, 3});
  creator().GenTeam();
  EXPECT_EQ(creator().List1.List(0), "John Johnson,GO,89,90,89,88,87,22,N");
}

TEST_F(PlayersTest, ATeamIsRatedAndShown) {
  creator().Command2.Click();
  int offense = 0;
  int defense = 0;
  for (const std::string& record : ItemsOf(creator().List1)) {
    const std::string position = HockeyNaming::GetField(record, "Position");
    (position.back() == 'F' ? offense : defense) += Number(record, "Overall");
  }
  EXPECT_EQ(naming().TeamOffense, DivideHalfToEven(offense, 6));
  EXPECT_EQ(naming().TeamDefense, DivideHalfToEven(defense, 5));
  EXPECT_EQ(creator().Label5.Caption(), std::to_string(naming().TeamOffense));
  EXPECT_EQ(creator().Label6.Caption(), std::to_string(naming().TeamDefense));
  EXPECT_EQ(creator().Label7.Caption(), std::to_string(naming().TeamOverall));
}

TEST_F(PlayersTest, ASecondTeamTakesThePlaceOfTheFirst) {
  creator().GenTeam();
  const Lines first = ItemsOf(creator().List1);
  creator().GenTeam();
  EXPECT_EQ(creator().List1.ListCount(), 11);
  EXPECT_NE(ItemsOf(creator().List1), first);
}

TEST_F(PlayersTest, AHundredTeamsStayWithinTheRanges) {
  dice().KeepRolls(false);
  for (int team = 0; team < 100; ++team) {
    creator().GenTeam();
    for (const std::string& record : ItemsOf(creator().List1)) {
      for (const char* skill : {"Passing", "Shooting", "Defense", "Agility"}) {
        EXPECT_GE(Number(record, skill), 70);
        EXPECT_LE(Number(record, skill), 99);
      }
      EXPECT_GE(Number(record, "Age"), 18);
      EXPECT_LE(Number(record, "Age"), 24);
      const std::string name = HockeyNaming::GetField(record, "Name");
      EXPECT_FALSE(name.starts_with("James ")) << name;
      EXPECT_FALSE(name.ends_with(" Smith")) << name;
    }
  }
}

// The tool's Save goes from the current folder.
class ToolSaveTest : public PlayersTest {
 protected:
  void SetUp() override { before_ = std::filesystem::current_path(); }
  void TearDown() override { std::filesystem::current_path(before_); }

 private:
  std::filesystem::path before_;
};

TEST_F(ToolSaveTest, WritesIntoALeagueWhenRunFromWithinTheFolderOfLeagues) {
  std::filesystem::current_path(world.path() + "/Teams");
  bool focused = false;
  creator().Text1.OnFocus = [&] { focused = true; };
  creator().GenTeam();
  const Lines team = ItemsOf(creator().List1);
  creator().Combo1.SetText("Rank B");
  creator().Command1.Click();
  EXPECT_EQ(ReadLines(world.TeamPath("Rank B", "Denver Skeletons")), team);
  EXPECT_EQ(creator().List1.ListCount(), 0);
  EXPECT_EQ(creator().Text1.Text(), "");
  EXPECT_EQ(creator().Text2.Text(), "");
  EXPECT_EQ(creator().Combo1.Text(), "Choose Rank");
  EXPECT_TRUE(focused);
}

TEST_F(ToolSaveTest, WritesNothingFromAnywhereElse) {
  std::filesystem::current_path(world.path());
  creator().GenTeam();
  creator().Combo1.SetText("Rank B");
  creator().Command1.Click();
  EXPECT_TRUE(world.Everything().empty());
  EXPECT_TRUE(front_end().Boxes().empty());
  EXPECT_EQ(creator().List1.ListCount(), 0);
}

}  // namespace
}  // namespace frostmark::test
