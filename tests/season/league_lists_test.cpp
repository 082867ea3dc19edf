#include <filesystem>

#include "tests/support/game_fixture.h"

namespace frostmark::test {
namespace {

class LeagueListsTest : public GameFixture {
 protected:
  LeagueListsTest() {
    world.FillWorld();
    TakeOver("Rank F", "F0 Wolves");
  }
};

TEST_F(LeagueListsTest, TheListsFollowTheFoldersAndAllRecordsStartAtZero) {
  for (ListBox* list : franchise().StatRankLists()) {
    FillList(*list, {"(3-1-0) Somebody", "(1-3-0) Else"});
  }
  franchise().RankF.AddItem("left over");
  franchise().LooseOrWin.SetCaption("You won 3 - 2");
  franchise().Label19.SetCaption("vs somebody");
  franchise().NextWeek.SetCaption("Week 7");
  franchise().OppTeam.SetCaption("kept");
  const auto before = front_end().Yields();
  franchise().LoadNewTeams();
  for (std::size_t league = 0; league < kRanks.size(); ++league) {
    const Lines names = world.FileNames(kRanks[league]);
    EXPECT_EQ(ItemsOf(*franchise().RankLists()[league]), names);
    Lines standings;
    for (const std::string& name : names) standings.push_back("(0-0-0) " + name);
    EXPECT_EQ(ItemsOf(*franchise().StatRankLists()[league]), standings);
  }
  EXPECT_EQ(franchise().LooseOrWin.Caption(), "");
  EXPECT_EQ(franchise().Label19.Caption(), "");
  EXPECT_EQ(franchise().NextWeek.Caption(), "Week 7");
  EXPECT_EQ(franchise().OppTeam.Caption(), "kept");
  EXPECT_EQ(front_end().Yields() - before, 36);
}

TEST_F(LeagueListsTest, NamesAreOrderedWithoutRegardToCase) {
  world.WriteTeam("Rank B", "alpha", {});
  world.WriteTeam("Rank B", "Zeta", {});
  world.WriteTeam("Rank B", "beta", {});
  franchise().LoadNewTeams();
  EXPECT_EQ(franchise().RankB.List(0), "alpha");
  EXPECT_EQ(franchise().RankB.List(7), "beta");
  EXPECT_EQ(franchise().RankB.List(8), "Zeta");
}

TEST_F(LeagueListsTest, TheUsersLeagueFollowsTheirFile) {
  EXPECT_EQ(franchise().MyRank.Caption(), "Rank F");
  std::filesystem::rename(world.TeamPath("Rank F", "F0 Wolves"),
                          world.TeamPath("Rank C", "F0 Wolves"));
  franchise().LoadNewTeams();
  EXPECT_EQ(franchise().MyRank.Caption(), "Rank C");
  // Only by the exact name.
  franchise().MyRank.SetCaption("nowhere");
  franchise().TeamName.SetCaption("f0 wolves");
  franchise().LoadNewTeams();
  EXPECT_EQ(franchise().MyRank.Caption(), "nowhere");
}

TEST_F(LeagueListsTest, ATeamInTwoFoldersCountsInTheHigherLeague) {
  world.WriteTeam("Rank B", "F0 Wolves", MakeRoster(80));
  franchise().LoadNewTeams();
  EXPECT_EQ(franchise().MyRank.Caption(), "Rank B");
}

TEST_F(LeagueListsTest, AnEmptyFolderLeavesBothListsEmpty) {
  std::filesystem::remove_all(world.path() + "/Teams/Rank E");
  std::filesystem::create_directory(world.path() + "/Teams/Rank E");
  std::filesystem::remove_all(world.path() + "/Teams/Rank D");  // and so does none at all
  franchise().LoadNewTeams();
  for (const ListBox* list :
       {&franchise().RankE, &franchise().StatRankE, &franchise().RankD, &franchise().StatRankD}) {
    EXPECT_EQ(list->ListCount(), 0) << list->Name();
  }
  EXPECT_EQ(franchise().RankC.ListCount(), 6);
}

TEST_F(LeagueListsTest, TheLesserFormReadsTheNamesAloneAndFindsTheOpponent) {
  for (ListBox* list : franchise().RankLists()) list->Clear();
  FillList(franchise().StatRankF, {"(3-1-0) F0 Wolves"});
  franchise().MyRank.SetCaption("Rank C");
  franchise().LooseOrWin.SetCaption("kept");
  franchise().Label19.SetCaption("kept too");
  franchise().NextWeek.SetCaption("Week 2");
  const auto before = front_end().Yields();
  franchise().LoadNewTeamsTwo();
  // One a team, then the opponent's roster: nine a record to read, one to rate.
  EXPECT_EQ(front_end().Yields() - before, 36 + 11 * 9 + 11);
  EXPECT_EQ(ItemsOf(franchise().RankF), world.FileNames("Rank F"));
  EXPECT_EQ(ItemsOf(franchise().RankA), world.FileNames("Rank A"));
  EXPECT_EQ(ItemsOf(franchise().StatRankF), Lines{"(3-1-0) F0 Wolves"});
  EXPECT_EQ(franchise().MyRank.Caption(), "Rank C");
  EXPECT_EQ(franchise().LooseOrWin.Caption(), "kept");
  EXPECT_EQ(franchise().Label19.Caption(), "kept too");
  EXPECT_EQ(franchise().OppTeam.Caption(), "F1 Wolves");
}

}  // namespace
}  // namespace frostmark::test
