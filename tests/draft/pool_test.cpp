#include <algorithm>

#include "tests/draft/draft_scene.h"

// The button "Draft": the pool of 120.

namespace frostmark::test {
namespace {

class DraftPoolTest : public DraftScene {
 protected:
  DraftPoolTest() { program().f_results.Show(); }

  // Presses "Draft" and stops at the first wait of the first turn.
  void RollPool() {
    front_end().AtWait([] { throw Stopped(); });
    EXPECT_THROW(program().f_results.Command1.Click(), Stopped);
  }
};

TEST_F(DraftPoolTest, TwentyProspectsAPositionAreRolledInFixedOrder) {
  RollPool();
  std::vector<int> expected;
  for (int player = 0; player < 120; ++player) {
    for (const int n : {1218, 3652, 30, 30, 30, 30, 7}) expected.push_back(n);
  }
  EXPECT_EQ(dice().Asked(), expected);
  for (std::size_t p = 0; p < FDraft::kPositions.size(); ++p) {
    const std::string position = FDraft::kPositions[p];
    const Lines pool = Pool(position);
    ASSERT_EQ(pool.size(), 20U);
    for (const std::string& record : pool) {
      EXPECT_EQ(HockeyNaming::GetField(record, "Position"), position);
      EXPECT_EQ(HockeyNaming::GetField(record, "Training"), "N");
      for (const char* skill : {"Passing", "Shooting", "Defense", "Agility", "Overall"}) {
        const double value = LenientNumber(HockeyNaming::GetField(record, skill));
        EXPECT_GE(value, 65) << record;
        EXPECT_LE(value, 94) << record;
      }
      const double age = LenientNumber(HockeyNaming::GetField(record, "Age"));
      EXPECT_GE(age, 18) << record;
      EXPECT_LE(age, 24) << record;
      EXPECT_EQ(std::count(record.begin(), record.end(), ','), 8);
    }
  }
  ExpectPoolInStep();
}

TEST_F(DraftPoolTest, AProspectIsMadeOfSevenRolls) {
  dice().Give({1218, 3652, 1, 2, 3, 4, 1});
  dice().Give({1, 1, 30, 30, 30, 30, 7});
  dice().ThenAlways(20);
  RollPool();
  const Lines goalies = Pool("GO");
  // The last of the lists can be drawn and the first can't.
  EXPECT_EQ(goalies[0], "Alonso Brockma,GO,93,94,93,92,91,24,N");
  EXPECT_EQ(goalies[19], "John Johnson,GO,65,65,65,65,65,18,N");
  EXPECT_EQ(draft().List1.shown.List(0), "Alonso Brockma 93/24");
  // Doubles stay.
  EXPECT_EQ(goalies[1], goalies[2]);
}

TEST_F(DraftPoolTest, TheListsAreSortedBestFirst) {
  RollPool();
  for (const char* position : FDraft::kPositions) {
    const Lines pool = Pool(position);
    EXPECT_TRUE(std::is_sorted(pool.begin(), pool.end(), [](const auto& a, const auto& b) {
      return LenientNumber(HockeyNaming::GetField(a, "Overall")) >
             LenientNumber(HockeyNaming::GetField(b, "Overall"));
    })) << position;
  }
}

TEST_F(DraftPoolTest, ThePoolIsShownWhenAllOfItIsRolled) {
  for (ListPair* list : draft().Pool()) list->shown.AddItem("of last year");
  draft().Events.AddItem("x");
  for (int player = 1; player <= 120; ++player) {
    front_end().AtYield([this, player] {
      EXPECT_EQ(draft().Events.ListCount(), 0);
      const std::size_t at = static_cast<std::size_t>((player - 1) / 20);
      for (std::size_t p = 0; p <= at; ++p) {
        EXPECT_EQ(draft().Pool()[p]->shown.ListCount(), 0);
        EXPECT_EQ(draft().Pool()[p]->records.ListCount(), p < at ? 20 : (player - 1) % 20 + 1);
      }
      for (std::size_t p = at + 1; p < 6; ++p) {
        EXPECT_EQ(draft().Pool()[p]->shown.ListCount(), 6);  // not yet cleared
      }
    });
  }
  for (int line = 1; line <= 120; ++line) {
    front_end().AtYield([this, line] {
      int shown = 0;
      for (ListPair* list : draft().Pool()) shown += list->shown.ListCount();
      EXPECT_EQ(shown, line);
      EXPECT_FALSE(draft().Visible());
      EXPECT_TRUE(program().f_results.Visible());
    });
  }
  front_end().AtWait([this] {
    EXPECT_TRUE(draft().Visible());
    EXPECT_FALSE(program().f_results.Visible());
    EXPECT_EQ(front_end().Yields(), 240);
    throw Stopped();
  });
  EXPECT_THROW(program().f_results.Command1.Click(), Stopped);
  ExpectPoolInStep();
}

TEST_F(DraftPoolTest, NothingOfLastYearsPoolIsLeft) {
  RollPool();
  for (const char* position : FDraft::kPositions) {
    for (const std::string& record : Pool(position)) {
      EXPECT_EQ(record.find("Rookie"), std::string::npos);
    }
  }
}

TEST_F(DraftPoolTest, TheButtonReturnsWhenTheDraftIsOver) {
  program().f_results.Command1.Click();
  EXPECT_TRUE(draft().Command1.Enabled());
  EXPECT_TRUE(draft().Visible());
  EXPECT_EQ(draft().CurRank.Caption(), "Rank F");
  EXPECT_EQ(Events().size(), 12U);
}

TEST_F(DraftPoolTest, ASecondPressInTheMiddleOfTheFirstIsRunInsideIt) {
  for (int yield = 0; yield < 5; ++yield) front_end().AtYield([] {});
  front_end().AtYield([this] {
    EXPECT_EQ(draft().List1.records.ListCount(), 6);
    program().f_results.Command1.Click();
    // A whole draft has run.
    EXPECT_TRUE(draft().Command1.Enabled());
    EXPECT_EQ(Events().size(), 12U);
    EXPECT_EQ(draft().List1.records.ListCount(), 20);
  });
  front_end().AtWait([this] {  // the first of the inner draft
    front_end().PassTime(std::chrono::seconds(1));
  });
  program().f_results.Command1.Click();
  // The first press went on with its other fourteen goalies, then with a draft of its own.
  EXPECT_TRUE(draft().Command1.Enabled());
  EXPECT_EQ(Events().size(), 24U);
  EXPECT_EQ(draft().List1.records.ListCount(), 34);
  EXPECT_EQ(dice().Rolls().size(), 2U * 840U);
  for (const char* rank : kRanks) EXPECT_EQ(ReadLines(PathOf(rank)).size(), 11U);
  EXPECT_FALSE(draft().AwaitingPick);
}

}  // namespace
}  // namespace frostmark::test
