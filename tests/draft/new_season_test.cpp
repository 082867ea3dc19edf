#include "records/lines/player_line.h"
#include "tests/support/game_fixture.h"
#include "tests/support/watchful_front_end.h"

// The button "New Season".

namespace frostmark::test {
namespace {

class NewSeasonTest : public GameFixture {
 protected:
  NewSeasonTest() {
    world.FillWorld();
    TakeOver("Rank F", "F3 Wolves");
    program().f_draft.Show();
    program().f_draft.Command1.Enable();
  }
  void NewSeason() { program().f_draft.Command1.Click(); }
};

TEST_F(NewSeasonTest, ItHandsTheGameBackAndSaves) {
  franchise().Hide();
  franchise().NextWeek.SetCaption("Draft");
  franchise().Season.SetCaption("3");
  franchise().OppTeam.SetCaption("an old opponent");
  franchise().OppOverall.SetCaption("12");
  franchise().LooseOrWin.SetCaption("You won 3 - 2");
  franchise().StatRankB.SetList(0, "(3-1-0) B0 Wolves");
  program().f_draft.List1.records.AddItem("left in the pool");
  program().f_draft.Events.AddItem("history");
  NewSeason();
  EXPECT_EQ(franchise().NextWeek.Caption(), "Week 1");
  EXPECT_FALSE(program().f_draft.Visible());
  EXPECT_TRUE(franchise().Visible());
  EXPECT_EQ(franchise().StatRankB.List(0), "(0-0-0) B0 Wolves");
  EXPECT_EQ(franchise().LooseOrWin.Caption(), "");
  EXPECT_EQ(franchise().OppTeam.Caption(), "an old opponent");
  EXPECT_EQ(franchise().OppOverall.Caption(), "12");
  EXPECT_EQ(franchise().MainList.ListCount(), 6);
  EXPECT_EQ(franchise().TrainList.ListCount(), 5);
  EXPECT_EQ(franchise().MainRoster.List(0), FormatRosterLine(franchise().MainList.List(0)));
  ASSERT_EQ(front_end().Boxes().size(), 1U);
  EXPECT_EQ(front_end().Boxes()[0].text, "File saved!");
  EXPECT_EQ(ordvik().ReadSetting("Week"), "Week 1");
  EXPECT_EQ(ordvik().ReadSetting("Season"), "3");
  EXPECT_EQ(ReadLines(world.SettingsPath("StatRankB.fmk"))[0], "(0-0-0) B0 Wolves");
  // The draft's history and what is left of the pool stay until the next draft.
  EXPECT_EQ(program().f_draft.Events.ListCount(), 1);
  EXPECT_EQ(program().f_draft.List1.records.ListCount(), 1);
}

TEST_F(NewSeasonTest, ItSavesWhenTheGameIsHandedBack) {
  WatchfulFrontEnd watchful;
  Program other(watchful, dice(), world.path());
  other.franchise.TeamName.SetCaption("F3 Wolves");
  other.f_draft.Show();
  watchful.OnBox = [&] {
    EXPECT_FALSE(other.f_draft.Visible());
    EXPECT_TRUE(other.franchise.Visible());
    EXPECT_EQ(other.franchise.TrainingRoster.ListCount(), 5);
  };
  other.f_draft.Command1.Click();
  EXPECT_EQ(watchful.Boxes().size(), 1U);
}

TEST_F(NewSeasonTest, TheTeamIsReadFromItsNewLeague) {
  franchise().TeamName.SetCaption("F0 Wolves");
  franchise().theOffSeason();
  ASSERT_EQ(franchise().MyRank.Caption(), "Rank E");
  NewSeason();
  EXPECT_EQ(franchise().MyRank.Caption(), "Rank E");
  EXPECT_EQ(franchise().RankE.List(5), "F0 Wolves");
  EXPECT_EQ(franchise().MainList.ListCount(), 6);
  EXPECT_EQ(ordvik().ReadSetting("Rank"), "Rank E");
  EXPECT_EQ(ReadLines(world.TeamPath("Rank E", "F0 Wolves")), MakeRoster(74));
  EXPECT_EQ(world.FileNames("Rank F").size(), 6U);
}

TEST_F(NewSeasonTest, AReplacementForATrainingPlayerMakesASeventhLeader) {
  Lines roster = MakeRoster(74);
  roster.erase(roster.begin() + 8);
  roster.push_back(MakeRecord({.name = "Rookie", .position = "RF"}));
  world.WriteTeam("Rank F", "F3 Wolves", roster);
  NewSeason();
  EXPECT_EQ(franchise().MainList.ListCount(), 7);
  EXPECT_EQ(franchise().TrainList.ListCount(), 4);
  EXPECT_EQ(franchise().MainRoster.List(6), "RF - Rookie (80/20)");
}

// The save after it writes the two lines, and so the player is lost to the file as well.
TEST_F(NewSeasonTest, ARecordOnNeitherLineIsLost) {
  Lines roster = MakeRoster(74);
  roster[8].back() = 'X';
  world.WriteTeam("Rank F", "F3 Wolves", roster);
  NewSeason();
  EXPECT_EQ(franchise().MainList.ListCount(), 6);
  EXPECT_EQ(franchise().TrainList.ListCount(), 4);
  EXPECT_EQ(ReadLines(world.TeamPath("Rank F", "F3 Wolves")).size(), 10U);
}

TEST_F(NewSeasonTest, OldListsAreForgottenAndEachRecordYields) {
  franchise().MainList.AddItem("left over");
  franchise().tempList.AddItem("left over");
  const auto yields = front_end().Yields();
  NewSeason();
  EXPECT_EQ(franchise().MainList.ListCount(), 6);
  EXPECT_EQ(franchise().tempList.ListCount(), 11);
  // 36 teams, the load, eleven records, then the save: roster, its file, standings. No alerts.
  EXPECT_EQ(front_end().Yields() - yields, 36 + 99 + 11 + 11 + 11 + 36);
}

}  // namespace
}  // namespace frostmark::test
