#include <set>

#include "season/week_table.h"
#include "tests/support/game_fixture.h"

// The week table, the league lists and the next opponent.

namespace frostmark::test {
namespace {

using Pairs = std::vector<std::pair<int, int>>;

Pairs PairsOf(int week) {
  Pairs pairs;
  for (const Fixture& game : FixturesOf(week)) pairs.emplace_back(game.first, game.second);
  return pairs;
}

TEST(WeekTableTest, TheFixturesAreThese) {
  EXPECT_EQ(PairsOf(1), (Pairs{{2, 1}, {3, 0}, {4, 5}}));
  EXPECT_EQ(PairsOf(2), (Pairs{{3, 4}, {0, 1}, {2, 5}}));
  EXPECT_EQ(PairsOf(3), (Pairs{{0, 4}, {2, 3}, {1, 5}}));
  EXPECT_EQ(PairsOf(4), (Pairs{{4, 1}, {5, 3}, {0, 2}}));
  EXPECT_EQ(PairsOf(5), (Pairs{{5, 0}, {1, 3}, {4, 2}}));
  for (int week = 1; week <= 5; ++week) EXPECT_EQ(PairsOf(week + 5), PairsOf(week));
}

TEST(WeekTableTest, EachWeekEveryTeamPlaysOnceAndInFiveWeeksMeetsAllOthers) {
  std::set<std::pair<int, int>> met;
  std::array<int, 6> home{};
  for (int week = 1; week <= 5; ++week) {
    std::set<int> playing;
    for (const auto& [first, second] : PairsOf(week)) {
      playing.insert({first, second});
      met.insert(std::minmax(first, second));
      ++home[static_cast<std::size_t>(first)];
    }
    EXPECT_EQ(playing.size(), 6U) << week;
  }
  EXPECT_EQ(met.size(), 15U);
  EXPECT_EQ(home, (std::array<int, 6>{3, 2, 3, 2, 3, 2}));
}

TEST(WeekTableTest, AMarkerIsReadAsText) {
  for (int week = 1; week <= 10; ++week) {
    EXPECT_EQ(WeekOf("Week " + std::to_string(week)), week);
  }
  for (const char* marker : {"Week 0", "Week 11", "Week 01", "week 1", "Week 1 ", "Week", "", "1",
                             "Off Season", "Draft"}) {
    EXPECT_EQ(WeekOf(marker), std::nullopt) << marker;
  }
}

class ScheduleTest : public GameFixture {
 protected:
  ScheduleTest() {
    world.FillWorld();
    TakeOver("Rank F", "F0 Wolves");
  }
  Lines Opponent() {
    return {franchise().OppTeam.Caption(), franchise().OppOverall.Caption(),
            franchise().OppOffense.Caption(), franchise().OppDefense.Caption()};
  }
  const Lines nobody = {"nobody", "1", "2", "3"};
  void ForgetOpponent() {
    franchise().OppTeam.SetCaption(nobody[0]);
    franchise().OppOverall.SetCaption(nobody[1]);
    franchise().OppOffense.SetCaption(nobody[2]);
    franchise().OppDefense.SetCaption(nobody[3]);
  }
};

TEST_F(ScheduleTest, AFreshScreenShowsNoOpponent) {
  Restart();
  EXPECT_EQ(Opponent(), (Lines{"", "00", "00", "00"}));
  EXPECT_EQ(franchise().NextWeek.Caption(), "Week 1");
}

TEST_F(ScheduleTest, GenScheduleReadsTheFoldersAndStartsAtWeekOne) {
  franchise().NextWeek.SetCaption("Off Season");
  franchise().MyRank.SetCaption("Rank D");
  franchise().LooseOrWin.SetCaption("kept");
  ListBox* const scratch[] = {&franchise().Team1,      &franchise().Team2,
                              &franchise().LineList,   &franchise().DefList,
                              &franchise().Line1Stats, &franchise().Line2Stats};
  for (ListBox* list : scratch) list->AddItem("left over");
  franchise().tempList.AddItem("left over");
  world.WriteTeam("Rank C", "a late team", MakeRoster(80));
  const auto before = front_end().Yields();
  franchise().GenSchedule();
  EXPECT_EQ(franchise().NextWeek.Caption(), "Week 1");
  EXPECT_EQ(ItemsOf(franchise().RankC), (Lines{"a late team", "C0 Wolves", "C1 Wolves", "C2 Wolves",
                                               "C3 Wolves", "C4 Wolves", "C5 Wolves"}));
  EXPECT_EQ(franchise().StatRankC.List(0), "(0-0-0) a late team");
  EXPECT_EQ(franchise().StatRankC.List(6), "(0-0-0) C5 Wolves");
  for (const ListBox* list : scratch) EXPECT_EQ(list->ListCount(), 0) << list->Name();
  EXPECT_EQ(franchise().MyRank.Caption(), "Rank D");
  EXPECT_EQ(franchise().LooseOrWin.Caption(), "kept");
  // One a team, then the opponent's roster: nine a record to read, one to rate.
  EXPECT_EQ(front_end().Yields() - before, 37 + 11 * 9 + 11);
  EXPECT_EQ(Opponent(), (Lines{"F3 Wolves", "77", "77", "77"}));
}

TEST_F(ScheduleTest, GenScheduleForgetsTheLastOpponentsRoster) {
  ASSERT_EQ(franchise().tempList.ListCount(), 11);
  franchise().TeamName.SetCaption("nobody's team");
  franchise().GenSchedule();
  EXPECT_EQ(franchise().tempList.ListCount(), 0);
  EXPECT_EQ(franchise().OppOffense.Caption(), "0");
}

TEST_F(ScheduleTest, EveryWeekShowsItsOpponent) {
  // "F0 Wolves" stands at position 0.
  const char* const opponents[] = {"F3 Wolves", "F1 Wolves", "F4 Wolves", "F2 Wolves", "F5 Wolves"};
  for (int week = 1; week <= 10; ++week) {
    franchise().NextWeek.SetCaption("Week " + std::to_string(week));
    ForgetOpponent();
    franchise().GetNextWeek();
    const std::string opponent = opponents[(week - 1) % 5];
    const std::string rating = std::to_string(74 + opponent[1] - '0');
    EXPECT_EQ(Opponent(), (Lines{opponent, rating, rating, rating})) << week;
    EXPECT_EQ(ItemsOf(franchise().tempList), ReadLines(world.TeamPath("Rank F", opponent)));
  }
}

TEST_F(ScheduleTest, TheUserMayStandOnEitherSide) {
  franchise().TeamName.SetCaption("F2 Wolves");
  franchise().GetNextWeek();
  EXPECT_EQ(franchise().OppTeam.Caption(), "F1 Wolves");
  franchise().TeamName.SetCaption("F1 Wolves");
  franchise().GetNextWeek();
  EXPECT_EQ(franchise().OppTeam.Caption(), "F2 Wolves");
}

TEST_F(ScheduleTest, OffenseAndDefenseHaveTheirLabels) {
  Lines roster = MakeRoster(80);
  for (std::string& record : roster) {
    if (record.find(",CF,") != std::string::npos || record.find("F,") != std::string::npos) {
      record = naming().SetField(record, "Shooting", "9");
    }
  }
  world.WriteTeam("Rank F", "F3 Wolves", roster);
  franchise().GetNextWeek();
  EXPECT_EQ(Opponent(), (Lines{"F3 Wolves", "82", "83", "80"}));
}

TEST_F(ScheduleTest, TwiceInARowGivesTheSameLabels) {
  franchise().GetNextWeek();
  const Lines once = Opponent();
  franchise().GetNextWeek();
  EXPECT_EQ(Opponent(), once);
}

TEST_F(ScheduleTest, TheLeagueOfTheFixtureAndNotTheUsersLabelNamesTheFolder) {
  franchise().MyRank.SetCaption("Rank A");
  ForgetOpponent();
  franchise().GetNextWeek();
  EXPECT_EQ(franchise().OppTeam.Caption(), "F3 Wolves");
  EXPECT_EQ(franchise().tempList.ListCount(), 11);
}

TEST_F(ScheduleTest, OutOfSeasonTheLastRosterIsRatedAndTheNameStays) {
  for (const char* marker : {"Off Season", "Draft", ""}) {
    franchise().NextWeek.SetCaption(marker);
    ForgetOpponent();
    FillList(franchise().tempList, MakeRoster(90));
    franchise().GetNextWeek();
    EXPECT_EQ(Opponent(), (Lines{"nobody", "90", "90", "90"})) << marker;
    EXPECT_EQ(franchise().tempList.ListCount(), 11);
  }
}

TEST_F(ScheduleTest, AnUnknownTeamKeepsTheOpponentAndRatesAgain) {
  franchise().TeamName.SetCaption("f0 wolves");
  ForgetOpponent();
  FillList(franchise().tempList, MakeRoster(90));
  franchise().GetNextWeek();
  EXPECT_EQ(Opponent(), (Lines{"nobody", "90", "90", "90"}));
}

TEST_F(ScheduleTest, AnEmptyRosterLeavesTheOverallOfTheTeamRatedLast) {
  franchise().NextWeek.SetCaption("Off Season");
  const int overall = naming().TeamOverall;
  franchise().tempList.Clear();
  franchise().GetNextWeek();
  EXPECT_EQ(franchise().OppOffense.Caption(), "0");
  EXPECT_EQ(franchise().OppDefense.Caption(), "0");
  EXPECT_EQ(franchise().OppOverall.Caption(), std::to_string(overall));
}

TEST_F(ScheduleTest, TheTableOfTheLeagueChangesNoFixture) {
  FillList(franchise().StatRankF, {"(5-0-0) F4 Wolves", "(0-5-0) F0 Wolves"});
  franchise().GetNextWeek();
  EXPECT_EQ(franchise().OppTeam.Caption(), "F3 Wolves");
}

TEST_F(ScheduleTest, AShortLeagueLeavesTheUserWithoutAnOpponent) {
  // Position 3 is nobody, be it first or second of the pair.
  for (const Lines& league :
       {Lines{"F0 Wolves", "F1 Wolves"}, Lines{"", "F1 Wolves", "F2 Wolves", "F0 Wolves"}}) {
    FillList(franchise().RankF, league);
    ForgetOpponent();
    FillList(franchise().tempList, MakeRoster(90));
    const auto reads = ordvik().counts().file_reads;
    const int overall = naming().TeamOverall;
    franchise().GetNextWeek();
    EXPECT_EQ(Opponent(), (Lines{"", std::to_string(overall), "0", "0"}));
    EXPECT_EQ(franchise().tempList.ListCount(), 0);
    EXPECT_EQ(ordvik().counts().file_reads, reads);
    EXPECT_EQ(front_end().Waits(), 0);
  }
}

TEST_F(ScheduleTest, FindOpponentTakesBothSidesInTurn) {
  franchise().TeamName.SetCaption("F1 Wolves");
  const auto reads = ordvik().counts().file_reads;
  franchise().FindOpponent("F1 Wolves", "F1 Wolves", "F");
  EXPECT_EQ(ordvik().counts().file_reads - reads, 2);
  EXPECT_EQ(franchise().OppTeam.Caption(), "F1 Wolves");
  EXPECT_EQ(franchise().tempList.ListCount(), 11);
  // An unknown letter empties the roster and names the opponent all the same.
  franchise().FindOpponent("F1 Wolves", "F4 Wolves", "G");
  EXPECT_EQ(franchise().OppTeam.Caption(), "F4 Wolves");
  EXPECT_EQ(franchise().tempList.ListCount(), 0);
  franchise().FindOpponent("F2 Wolves", "F3 Wolves", "F");
  EXPECT_EQ(franchise().OppTeam.Caption(), "F4 Wolves");
}

}  // namespace
}  // namespace frostmark::test
