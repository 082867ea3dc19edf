#include "tests/support/game_fixture.h"

// Whole years by the buttons alone.

namespace frostmark::test {
namespace {

class YearTest : public GameFixture {
 protected:
  // Leaves a press that waits for the file of an opponent who has moved.
  struct LeftWaiting {};

  YearTest() {
    world.FillWorld();
    TakeOver("Rank C", "C2 Wolves");
    franchise().SaveGame();
    franchise().Show();
    dice().KeepRolls(false);
  }

  // What the user does in each wait of the off-season.
  void Answer() {
    front_end().AtWait([this] {
      FDraft& draft = program().f_draft;
      if (!draft.Visible()) throw LeftWaiting();
      if (!draft.AwaitingPick) {
        front_end().PassTime(std::chrono::seconds(1));
      } else if (program().f_select_draft.Visible()) {
        LetGo();
      } else {
        Pick();
      }
      Answer();
    });
  }
  void LetGo() {
    front_end().QueueAnswer("yes");
    program().f_select_draft.List1.DoubleClick(10);
  }
  void Pick() {
    for (ListPair* list : program().f_draft.Pool()) {
      if (!list->shown.Enabled()) continue;
      front_end().QueueAnswer("yes");
      list->shown.DoubleClick(0);
      return;
    }
    FAIL() << "no list is open";
  }
  // Sends all but the first player of each position to training, and fetches one where none is.
  void SetLines() {
    for (const char* position : {"GO", "RD", "LD", "RF", "CF", "LF"}) {
      const auto at = [&](const RecordList& list, int skip) {
        for (int i = 0; i < list.ListCount(); ++i) {
          if (FieldView(list.List(i), Field::kPosition) == position && skip-- == 0) return i;
        }
        return -1;
      };
      for (int extra = at(franchise().MainList, 1); extra >= 0;
           extra = at(franchise().MainList, 1)) {
        franchise().MainRoster.Select(extra);
        franchise().Command3.Click();
      }
      if (at(franchise().MainList, 0) < 0) {
        franchise().TrainingRoster.Select(at(franchise().TrainList, 0));
        franchise().Command4.Click();
      }
    }
  }

  void PlayYear() {
    SetLines();
    front_end().QueueAnswer("11");
    if (!answering_) Answer();
    answering_ = true;
    try {
      franchise().Command2.Click();
    } catch (const LeftWaiting&) {
      Answer();
    }
    ASSERT_TRUE(program().f_results.Visible());
    program().f_results.Command1.Click();
    program().f_draft.Command1.Click();
    ASSERT_TRUE(franchise().Visible());
  }

 private:
  bool answering_ = false;  // an Answer is queued
};

TEST_F(YearTest, ThreeYearsLeaveTheWorldWhole) {
  for (int year = 1; year <= 3; ++year) {
    PlayYear();
    EXPECT_EQ(franchise().Season.Caption(), std::to_string(year));
    EXPECT_EQ(franchise().NextWeek.Caption(), "Week 1");
    EXPECT_EQ(ordvik().ReadSetting("Season"), std::to_string(year));
    EXPECT_EQ(ordvik().ReadSetting("Rank"), franchise().MyRank.Caption());
    for (const char* rank : kRanks) {
      const Lines teams = world.FileNames(rank);
      EXPECT_EQ(teams.size(), 6U) << rank;
      for (const std::string& team : teams) {
        EXPECT_EQ(ReadLines(world.TeamPath(rank, team)).size(), 11U) << team;
      }
    }
    EXPECT_EQ(ReadLines(world.TeamPath(franchise().MyRank.Caption(), "C2 Wolves")).size(), 11U);
    EXPECT_EQ(world.SettingsNames().size(), 8U);
    EXPECT_EQ(front_end().LeftOverAnswers(), 0U);
  }
}

}  // namespace
}  // namespace frostmark::test
