#include <gtest/gtest.h>

#include <filesystem>

#include "tests/support/game_fixture.h"

namespace frostmark::test {
namespace {

class RosterTest : public GameFixture {
 protected:
  void SetUp() override {
    world.FillWorld();
    TakeOver("Rank F", "F2 Wolves");
    roster_ = ReadLines(TeamFile());
  }

  std::string TeamFile() const { return world.TeamPath("Rank F", "F2 Wolves"); }
  static std::string WithTraining(std::string record, char training) {
    record.back() = training;
    return record;
  }
  void ToTraining(int i) {
    franchise().MainRoster.Select(i);
    franchise().Command3.Click();
  }
  void ToLeadLine(int i) {
    franchise().TrainingRoster.Select(i);
    franchise().Command4.Click();
  }
  FPlayer& popup() { return program().f_player; }
  Lines Shown() {
    return {popup().Label10.Caption(), popup().Label9.Caption(), popup().Label12.Caption(),
            popup().Label15.Caption(), popup().Label6.Caption(), popup().Label3.Caption(),
            popup().Label1.Caption()};
  }

  Lines roster_;
};

TEST_F(RosterTest, ListsAreBuiltFromTheRecords) {
  EXPECT_EQ(ItemsOf(franchise().MainList), Lines(roster_.begin(), roster_.begin() + 6));
  EXPECT_EQ(ItemsOf(franchise().TrainList), Lines(roster_.begin() + 6, roster_.end()));
  EXPECT_EQ(franchise().MainRoster.List(0), "GO - Adam Player (76/20)");
  EXPECT_EQ(franchise().TrainingRoster.List(4), "LF - Kent Player (76/20)");
}

TEST_F(RosterTest, AMoveToTrainingReachesTheTeamFileAtOnce) {
  ToTraining(2);  // the left defence
  Lines expected = roster_;
  expected.erase(expected.begin() + 2);
  expected.push_back(WithTraining(roster_[2], 'Y'));
  EXPECT_EQ(ReadLines(TeamFile()), expected);
  EXPECT_EQ(franchise().MainList.ListCount(), 5);
  EXPECT_EQ(franchise().MainRoster.ListCount(), 5);
  EXPECT_EQ(franchise().TrainList.List(5), expected[10]);
  EXPECT_EQ(franchise().TrainingRoster.List(5), "LD - Carl Player (76/20)");
  EXPECT_EQ(ItemsOf(franchise().tempList), expected);
}

TEST_F(RosterTest, AMoveToTheLeadLineIsTheMirror) {
  ToLeadLine(1);
  Lines expected = roster_;
  expected.erase(expected.begin() + 7);
  expected.insert(expected.begin() + 6, WithTraining(roster_[7], 'N'));
  EXPECT_EQ(ReadLines(TeamFile()), expected);
  EXPECT_EQ(franchise().MainList.ListCount(), 7);
  EXPECT_EQ(franchise().MainRoster.List(6), "LD - Hugh Player (76/20)");
  EXPECT_EQ(franchise().TrainList.ListCount(), 4);
  EXPECT_EQ(franchise().TrainingRoster.ListCount(), 4);
}

TEST_F(RosterTest, MovesDoNotShiftTheOrderOfTheOthersAndNothingIsChecked) {
  while (franchise().MainList.ListCount() > 0) ToTraining(0);
  EXPECT_EQ(ReadLines(TeamFile()).size(), 11U);
  EXPECT_EQ(franchise().TrainList.ListCount(), 11);
  while (franchise().TrainList.ListCount() > 0) ToLeadLine(0);
  EXPECT_EQ(franchise().MainList.ListCount(), 11);
  EXPECT_TRUE(front_end().Boxes().empty());
}

TEST_F(RosterTest, RatingsAreNotRecomputedOnAMove) {
  franchise().Label9.SetCaption("1");
  franchise().Label12.SetCaption("2");
  franchise().Label15.SetCaption("3");
  ToTraining(0);
  EXPECT_EQ(franchise().Label9.Caption(), "1");
  EXPECT_EQ(franchise().Label12.Caption(), "2");
  EXPECT_EQ(franchise().Label15.Caption(), "3");
}

TEST_F(RosterTest, TheDisplayLineMovesAsItIsAndTheRecordIsRecomputed) {
  franchise().MainList.SetList(4, "Earl Player,CF,1,80,80,80,80,20,N");
  ToTraining(4);
  EXPECT_EQ(franchise().TrainList.List(5), "Earl Player,CF,80,80,80,80,80,20,Y");
  EXPECT_EQ(franchise().TrainingRoster.List(5), "CF - Earl Player (76/20)");
}

TEST_F(RosterTest, WithNothingSelectedAnArrowDoesNothing) {
  const Lines before = world.Everything();
  franchise().Command3.Click();
  franchise().Command4.Click();
  EXPECT_EQ(world.Everything(), before);
  EXPECT_EQ(franchise().MainList.ListCount(), 6);
  EXPECT_EQ(franchise().TrainList.ListCount(), 5);
}

TEST_F(RosterTest, ASecondPressActsOnTheSelectionThatTheListThenHas) {
  ToTraining(2);
  const Lines after_one = ReadLines(TeamFile());
  franchise().Command3.Click();  // the selected player has gone, so nobody is selected
  EXPECT_EQ(ReadLines(TeamFile()), after_one);
  ToTraining(2);  // the one who moved up
  EXPECT_EQ(franchise().TrainingRoster.List(6), "RF - Dean Player (76/20)");
}

TEST_F(RosterTest, TheFileFollowsTheLabelsOfLeagueAndTeam) {
  franchise().MyRank.SetCaption("Rank B");
  franchise().TeamName.SetCaption("Elsewhere");
  ToTraining(0);
  EXPECT_EQ(ReadLines(world.TeamPath("Rank B", "Elsewhere")).size(), 11U);
  EXPECT_EQ(ReadLines(TeamFile()), roster_);
}

TEST_F(RosterTest, ASaveThatFailsIsSilent) {
  std::filesystem::remove_all(world.path() + "/Teams");
  ToTraining(0);
  EXPECT_EQ(franchise().TrainList.ListCount(), 6);
  EXPECT_TRUE(front_end().Boxes().empty());
}

TEST_F(RosterTest, ADoubleClickShowsALeadPlayer) {
  franchise().MainList.SetList(3, "Dean Player,RF,91,92,93,94,95,31,N");
  franchise().MainRoster.DoubleClick(3);
  EXPECT_EQ(Shown(), (Lines{"Dean Player", "91", "93", "92", "94", "95", "31"}));
  EXPECT_TRUE(popup().Visible());
}

TEST_F(RosterTest, ASingleClickOnlySelects) {
  franchise().MainRoster.Select(3);
  franchise().TrainingRoster.Select(3);
  EXPECT_FALSE(popup().Visible());
  EXPECT_EQ(franchise().MainRoster.ListIndex(), 3);
}

TEST_F(RosterTest, ATrainingPlayerIsNeverShown) {
  franchise().MainList.SetList(0, "Adam Player,GO,91,92,93,94,95,31,N");
  franchise().TrainingRoster.DoubleClick(2);
  EXPECT_EQ(Shown(), (Lines{"", "91", "93", "92", "94", "95", "31"}));
  EXPECT_TRUE(popup().Visible());
  franchise().MainRoster.Select(4);
  franchise().TrainingRoster.DoubleClick(2);
  EXPECT_EQ(Shown(), (Lines{"Earl Player", "91", "93", "92", "94", "95", "31"}));
}

TEST_F(RosterTest, WithAnEmptyLeadLineThePopupIsEmpty) {
  franchise().ClearRoster();
  franchise().TrainingRoster.AddItem("somebody");
  franchise().TrainingRoster.DoubleClick(0);
  EXPECT_EQ(Shown(), Lines(7, ""));
}

TEST_F(RosterTest, TheCrossHidesThePopup) {
  franchise().MainRoster.DoubleClick(0);
  popup().Label5.Click();
  EXPECT_FALSE(popup().Visible());
}

TEST_F(RosterTest, MinMinimizes) {
  franchise().Show();
  franchise().Command6.Click();
  EXPECT_TRUE(franchise().Minimized());
  EXPECT_TRUE(franchise().Visible());
}

TEST_F(RosterTest, APlayerOnNeitherLineIsOnNoListAndIsGoneWithTheNextMove) {
  for (const char* training : {"", "n", "y", "X", "NY", " N"}) {
    Lines roster = roster_;
    roster[8] = MakeRecord({.name = "Odd Player", .position = "RF", .training = training});
    world.WriteTeam("Rank F", "F2 Wolves", roster);
    franchise().ClearRoster();
    for (const std::string& record : roster) franchise().AddToRoster(record);
    EXPECT_EQ(franchise().MainList.ListCount(), 6) << training;
    EXPECT_EQ(franchise().TrainList.ListCount(), 4) << training;
    for (const ListBox* list : {&franchise().MainList, &franchise().MainRoster,
                                &franchise().TrainList, &franchise().TrainingRoster}) {
      for (const std::string& item : ItemsOf(*list)) {
        EXPECT_EQ(item.find("Odd Player"), std::string::npos) << list->Name();
      }
    }
    EXPECT_NE(ReadText(TeamFile()).find("Odd Player"), std::string::npos);
    // The whole roster is the two lists: what stands on neither is not written.
    ToTraining(0);
    EXPECT_EQ(ReadLines(TeamFile()).size(), 10U);
    EXPECT_EQ(ReadText(TeamFile()).find("Odd Player"), std::string::npos);
  }
}

}  // namespace
}  // namespace frostmark::test
