#include "records/runtime_error.h"
#include "tests/support/game_fixture.h"

// Counting a result into the standings, and thinning out the news.

namespace frostmark::test {
namespace {

TEST(CountResultTest, EachKindCountsItsOwnNumber) {
  EXPECT_EQ(HockeyNaming::CountResult("(3-2-1) Denver Skeletons", "Win"),
            "(4-2-1) Denver Skeletons");
  EXPECT_EQ(HockeyNaming::CountResult("(3-2-1) Denver Skeletons", "Lose"),
            "(3-3-1) Denver Skeletons");
  EXPECT_EQ(HockeyNaming::CountResult("(3-2-1) Denver Skeletons", "Tie"),
            "(3-2-2) Denver Skeletons");
  EXPECT_EQ(HockeyNaming::CountResult("(9-9-9) X", "Win"), "(10-9-9) X");
}

TEST(CountResultTest, AnyOtherKindGivesNothing) {
  EXPECT_EQ(HockeyNaming::CountResult("(3-2-1) Denver Skeletons", "win"), "");
  EXPECT_EQ(HockeyNaming::CountResult("(3-2-1) Denver Skeletons", ""), "");
}

TEST(CountResultTest, ADashOrABracketInTheNameDoesNoHarm) {
  EXPECT_EQ(HockeyNaming::CountResult("(0-0-0) A-B City", "Win"), "(1-0-0) A-B City");
  EXPECT_EQ(HockeyNaming::CountResult("(0-0-0) A (B) City", "Lose"), "(0-1-0) A (B) City");
  EXPECT_EQ(HockeyNaming::CountResult("(0-0-0) ", "Tie"), "(0-0-1) ");
}

TEST(CountResultTest, ALineWithoutARecordEndsTheProgram) {
  for (const char* line :
       {"", "Denver Skeletons", "(3-2) Denver", "(a-b-c) Denver", "(--) Denver", "(3-2-1 Denver"}) {
    EXPECT_THROW(HockeyNaming::CountResult(line, "Win"), RuntimeError) << line;
  }
}

TEST(CountResultTest, TheCountsAreSixteenBitNumbers) {
  EXPECT_EQ(HockeyNaming::CountResult("(32766-0-0) X", "Win"), "(32767-0-0) X");
  EXPECT_THROW(HockeyNaming::CountResult("(32767-0-0) X", "Win"), RuntimeError);
  EXPECT_THROW(HockeyNaming::CountResult("(0-32768-0) X", "Win"), RuntimeError);
}

class StandingsTest : public GameFixture {
 protected:
  Lines Count(int score1, int score2, const std::string& name1, const std::string& name2,
              const Lines& lines) {
    RecordList list;
    FillList(list, lines);
    franchise().Score1 = score1;
    franchise().Score2 = score2;
    const auto before = front_end().Yields();
    franchise().SetStandings(list, name1, name2);
    yields = front_end().Yields() - before;
    return ItemsOf(list);
  }
  std::int64_t yields = 0;
  const Lines table = {"(1-0-0) Ants", "(0-1-0) Bees", "(0-0-1) Cats"};
};

TEST_F(StandingsTest, TheWinnerWinsAndTheLoserLoses) {
  EXPECT_EQ(Count(3, 2, "Bees", "Cats", table),
            (Lines{"(1-0-0) Ants", "(1-1-0) Bees", "(0-1-1) Cats"}));
  EXPECT_EQ(Count(2, 3, "Bees", "Cats", table),
            (Lines{"(1-0-0) Ants", "(0-2-0) Bees", "(1-0-1) Cats"}));
}

TEST_F(StandingsTest, ATieIsATieForBoth) {
  EXPECT_EQ(Count(0, 0, "Ants", "Cats", table),
            (Lines{"(1-0-1) Ants", "(0-1-0) Bees", "(0-0-2) Cats"}));
}

TEST_F(StandingsTest, ScoresAreComparedAsNumbers) {
  EXPECT_EQ(Count(10, 9, "Ants", "Bees", table).front(), "(2-0-0) Ants");
}

TEST_F(StandingsTest, TheFirstSearchYieldsUpToItsHitAndTheSecondForEveryLine) {
  Count(3, 2, "Ants", "Cats", table);
  EXPECT_EQ(yields, 0 + 3);
  Count(2, 3, "Ants", "Cats", table);
  EXPECT_EQ(yields, 2 + 3);
  Count(2, 2, "Ants", "Bees", table);  // a tie looks for the second team first
  EXPECT_EQ(yields, 1 + 3);
}

TEST_F(StandingsTest, AnUnknownTeamChangesNothingAndTheOtherCounts) {
  EXPECT_EQ(Count(3, 2, "Dogs", "Cats", table),
            (Lines{"(1-0-0) Ants", "(0-1-0) Bees", "(0-1-1) Cats"}));
  EXPECT_EQ(yields, 3 + 3);
  EXPECT_EQ(Count(3, 2, "Ants", "Dogs", table),
            (Lines{"(2-0-0) Ants", "(0-1-0) Bees", "(0-0-1) Cats"}));
}

TEST_F(StandingsTest, ANameInsideAnotherNameCountsThereToo) {
  const Lines cities = {"(0-0-0) New York", "(0-0-0) York", "(0-0-0) York City"};
  // The first search stops at its first hit, which is the wrong line here.
  EXPECT_EQ(Count(2, 1, "York", "New York", cities),
            (Lines{"(1-1-0) New York", "(0-0-0) York", "(0-0-0) York City"}));
  // The second one does not stop.
  EXPECT_EQ(Count(2, 1, "New York", "York", cities),
            (Lines{"(1-1-0) New York", "(0-1-0) York", "(0-1-0) York City"}));
  // In a tie it is the second team that is looked for first.
  EXPECT_EQ(Count(1, 1, "New York", "York", cities),
            (Lines{"(0-0-2) New York", "(0-0-0) York", "(0-0-0) York City"}));
  EXPECT_EQ(Count(1, 1, "York", "New York", cities),
            (Lines{"(0-0-2) New York", "(0-0-1) York", "(0-0-1) York City"}));
}

TEST_F(StandingsTest, ALineWithoutARecordEndsTheProgram) {
  EXPECT_THROW(Count(1, 0, "Ants", "Bees", {"Ants", "(0-0-0) Bees"}), RuntimeError);
}

class TrimAlertsTest : public GameFixture {
 protected:
  ListBox& Alerts() { return franchise().Alerts; }
  // Lines "0", "1" and so on, COUNT of them.
  void Fill(int count) {
    Alerts().Clear();
    for (int i = 0; i < count; ++i) Alerts().AddItem(std::to_string(i));
  }
  // Which of COUNT lines TrimAlerts removes.
  std::vector<int> RemovedOf(int count) {
    Fill(count);
    const auto before = front_end().Yields();
    franchise().TrimAlerts();
    yields = front_end().Yields() - before;
    std::vector<int> removed;
    int at = 0;
    for (int i = 0; i < count; ++i) {
      if (Alerts().List(at) == std::to_string(i)) {
        ++at;
      } else {
        removed.push_back(i);
      }
    }
    EXPECT_EQ(at, Alerts().ListCount());
    return removed;
  }
  std::int64_t yields = 0;
};

TEST_F(TrimAlertsTest, UpToTwentySixLinesStay) {
  for (const int count : {0, 1, 25, 26}) {
    EXPECT_EQ(RemovedOf(count), std::vector<int>{}) << count;
    EXPECT_EQ(yields, 0);
  }
}

TEST_F(TrimAlertsTest, AfterThemEverySecondLineGoes) {
  EXPECT_EQ(RemovedOf(27), std::vector<int>{26});
  EXPECT_EQ(yields, 27);
  EXPECT_EQ(RemovedOf(30), (std::vector<int>{26, 28}));
  EXPECT_EQ(Alerts().ListCount(), 28);
  std::vector<int> every_second;
  for (int i = 26; i < 62; i += 2) every_second.push_back(i);
  EXPECT_EQ(RemovedOf(62), every_second);
  EXPECT_EQ(Alerts().ListCount(), 44);
  EXPECT_EQ(yields, 62);
}

TEST_F(TrimAlertsTest, AnEmptyLineStays) {
  Fill(28);
  Alerts().SetList(26, "");
  franchise().TrimAlerts();
  EXPECT_EQ(Alerts().ListCount(), 27);
  EXPECT_EQ(Alerts().List(26), "");
}

TEST_F(TrimAlertsTest, WeekAfterWeekItSettlesWhereEighteenComeAndEighteenGo) {
  const auto play_weeks = [this](int start) {
    Fill(start);
    for (int week = 0; week < 20; ++week) {
      for (int game = 0; game < 18; ++game) Alerts().AddItem("news", 0);
      franchise().TrimAlerts();
    }
    return Alerts().ListCount();
  };
  EXPECT_EQ(play_weeks(0), 43);
  EXPECT_EQ(play_weeks(44), 44);
  EXPECT_EQ(play_weeks(300), 44);
}

TEST_F(TrimAlertsTest, PlayWeekDoesNothing) {
  world.FillWorld();
  TakeOver("Rank F", "F0 Wolves");
  const Lines files = world.Everything();
  const auto yields_before = front_end().Yields();
  franchise().PlayWeek();
  EXPECT_TRUE(world.Everything() == files);
  EXPECT_EQ(franchise().NextWeek.Caption(), "Week 1");
  EXPECT_EQ(franchise().Alerts.ListCount(), 0);
  EXPECT_EQ(front_end().Yields(), yields_before);
  EXPECT_TRUE(dice().Rolls().empty());
}

}  // namespace
}  // namespace frostmark::test
