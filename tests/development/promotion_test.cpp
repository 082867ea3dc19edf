#include <array>
#include <filesystem>

#include "tests/support/game_fixture.h"
#include "tests/support/watchful_front_end.h"

// The end of a season: who moves, what is shown, in which order.

namespace frostmark::test {
namespace {

using Borders = std::array<bool, 5>;  // from that of "Rank F" up

class PromotionTest : public GameFixture {
 protected:
  PromotionTest() {
    world.FillWorld();
    TakeOver("Rank F", "F3 Wolves");
    franchise().Show();
  }
  FResults& results() { return program().f_results; }

  // Takes over TEAM, with the tables in folder order: number 0 first, number 5 last.
  void EndSeasonOf(const std::string& team) {
    franchise().TeamName.SetCaption(team);
    franchise().LoadNewTeams();
    franchise().theOffSeason();
  }
  bool LiesIn(const std::string& team, const std::string& rank) {
    return std::filesystem::exists(world.TeamPath(rank, team));
  }
};

TEST_F(PromotionTest, TheScreenStartsAsDesigned) {
  EXPECT_EQ(results().Caption(), "Results");
  EXPECT_EQ(results().XTab1.Tabs(), (std::vector<std::string>{"Results", "Overall Standings"}));
  EXPECT_EQ(results().Command1.Caption(), "Draft");
  EXPECT_EQ(results().Label4.Caption(), "Champion:");
  EXPECT_EQ(results().Champ.Caption(), "Denver Skeletons");
  for (const char* name : {"Label5", "Label6", "Label16", "Label15", "Label8", "Label7", "Label20",
                           "Label19", "Label12", "Label11", "Label24", "Label23"}) {
    EXPECT_EQ(static_cast<Label*>(results().Find(name))->Caption(), "No one") << name;
  }
  const char* const frames[] = {"Frame1", "Frame4", "Frame2", "Frame5",  "Frame3",  "Frame6",
                                "Frame7", "Frame8", "Frame9", "Frame10", "Frame11", "Frame12"};
  const char* const ranks[] = {"Rank A", "Rank B", "Rank C", "Rank D", "Rank E", "Rank F"};
  for (std::size_t i = 0; i < 12; ++i) {
    EXPECT_EQ(static_cast<Frame*>(results().Find(frames[i]))->Caption(), ranks[i % 6]);
  }
  for (const char* name : {"Label1", "Label18", "Label10", "Label22", "Label14", "Label26"}) {
    EXPECT_EQ(static_cast<Label*>(results().Find(name))->Caption(), "Winner:") << name;
  }
  for (const char* name : {"Label2", "Label17", "Label9", "Label21", "Label13", "Label25"}) {
    EXPECT_EQ(static_cast<Label*>(results().Find(name))->Caption(), "Loser:") << name;
  }
}

TEST_F(PromotionTest, FirstsGoUpAndLastsGoDown) {
  const Lines before = world.Everything();
  franchise().theOffSeason();
  EXPECT_EQ(world.FileNames("Rank F"),
            (Lines{"E5 Wolves", "F1 Wolves", "F2 Wolves", "F3 Wolves", "F4 Wolves", "F5 Wolves"}));
  EXPECT_EQ(world.FileNames("Rank E"),
            (Lines{"D5 Wolves", "E1 Wolves", "E2 Wolves", "E3 Wolves", "E4 Wolves", "F0 Wolves"}));
  EXPECT_EQ(world.FileNames("Rank D"),
            (Lines{"C5 Wolves", "D1 Wolves", "D2 Wolves", "D3 Wolves", "D4 Wolves", "E0 Wolves"}));
  EXPECT_EQ(world.FileNames("Rank C"),
            (Lines{"B5 Wolves", "C1 Wolves", "C2 Wolves", "C3 Wolves", "C4 Wolves", "D0 Wolves"}));
  EXPECT_EQ(world.FileNames("Rank B"),
            (Lines{"A5 Wolves", "B1 Wolves", "B2 Wolves", "B3 Wolves", "B4 Wolves", "C0 Wolves"}));
  EXPECT_EQ(world.FileNames("Rank A"),
            (Lines{"A0 Wolves", "A1 Wolves", "A2 Wolves", "A3 Wolves", "A4 Wolves", "B0 Wolves"}));
  // Moved, not changed.
  EXPECT_EQ(ReadLines(world.TeamPath("Rank E", "F0 Wolves")), MakeRoster(74));
  EXPECT_EQ(ReadLines(world.TeamPath("Rank B", "A5 Wolves")), MakeRoster(94));
  EXPECT_EQ(world.Everything().size(), before.size());
}

TEST_F(PromotionTest, TheScreenKnowsWhoHasMoved) {
  EXPECT_EQ(results().crossed, Borders{});
  franchise().theOffSeason();
  EXPECT_EQ(results().crossed, (Borders{true, true, true, true, true}));
}

TEST_F(PromotionTest, NobodyHasMovedAcrossAClosedBorder) {
  std::filesystem::remove(world.TeamPath("Rank D", "D0 Wolves"));
  franchise().StatRankB.RemoveItem(5);
  franchise().theOffSeason();
  EXPECT_EQ(results().crossed, (Borders{true, true, false, false, true}));
}

TEST_F(PromotionTest, TheLabelsNameThemAll) {
  franchise().theOffSeason();
  EXPECT_EQ(results().Label24.Caption(), "F0 Wolves");
  EXPECT_EQ(results().Label23.Caption(), "F5 Wolves");
  EXPECT_EQ(results().Label12.Caption(), "E0 Wolves");
  EXPECT_EQ(results().Label11.Caption(), "E5 Wolves");
  EXPECT_EQ(results().Label20.Caption(), "D0 Wolves");
  EXPECT_EQ(results().Label19.Caption(), "D5 Wolves");
  EXPECT_EQ(results().Label8.Caption(), "C0 Wolves");
  EXPECT_EQ(results().Label7.Caption(), "C5 Wolves");
  EXPECT_EQ(results().Label16.Caption(), "B0 Wolves");
  EXPECT_EQ(results().Label15.Caption(), "B5 Wolves");
  EXPECT_EQ(results().Label5.Caption(), "A0 Wolves");
  EXPECT_EQ(results().Champ.Caption(), "A0 Wolves");
  EXPECT_EQ(results().Label6.Caption(), "A5 Wolves");
}

TEST_F(PromotionTest, PlacesGoByTheOrderOfTheTableAlone) {
  // The two firsts are equal to the rule; the order that stands decides.
  FillList(franchise().StatRankC, {"(5-3-2) C4 Wolves", "(5-3-0) C1 Wolves", "(4-0-0) C0 Wolves",
                                   "(9-0-0) C2 Wolves", "(1-0-0) C3 Wolves", "(3-3-0) C5 Wolves"});
  franchise().theOffSeason();
  EXPECT_EQ(results().Label8.Caption(), "C4 Wolves");
  EXPECT_TRUE(LiesIn("C4 Wolves", "Rank B"));
  EXPECT_TRUE(LiesIn("C5 Wolves", "Rank D"));
  EXPECT_TRUE(LiesIn("C2 Wolves", "Rank C"));
}

TEST_F(PromotionTest, TheTablesAreCopiedAsTheyStood) {
  franchise().StatRankE.SetList(0, "(7-2-1) E0 Wolves");
  const auto yields = front_end().Yields();
  franchise().theOffSeason();
  EXPECT_EQ(front_end().Yields() - yields, 36);
  const std::array<ListBox*, 6> shown = {&results().List6, &results().List5, &results().List4,
                                         &results().List3, &results().List2, &results().List1};
  for (std::size_t league = 0; league < kRanks.size(); ++league) {
    EXPECT_EQ(ItemsOf(*shown[league]), ItemsOf(*franchise().StatRankLists()[league]));
  }
  EXPECT_EQ(results().List5.List(0), "(7-2-1) E0 Wolves");
  // A second season does not add to the first.
  EndSeasonOf("F3 Wolves");
  EXPECT_EQ(results().List1.ListCount(), 6);
}

TEST_F(PromotionTest, TheTopTableIsCopiedFirst) {
  front_end().AtYield([this] {
    EXPECT_EQ(results().List1.ListCount(), 1);
    EXPECT_EQ(results().List6.ListCount(), 0);
    // All teams have moved by now, and the season is not yet counted.
    EXPECT_TRUE(LiesIn("A5 Wolves", "Rank B"));
    EXPECT_EQ(franchise().Season.Caption(), "00");
    EXPECT_FALSE(results().Visible());
  });
  franchise().theOffSeason();
}

TEST_F(PromotionTest, TheLeagueListsStayUntilTheDraftIsOver) {
  std::vector<Lines> lists;
  for (ListBox* list : franchise().RankLists()) lists.push_back(ItemsOf(*list));
  for (ListBox* list : franchise().StatRankLists()) lists.push_back(ItemsOf(*list));
  franchise().theOffSeason();
  std::vector<Lines> after;
  for (ListBox* list : franchise().RankLists()) after.push_back(ItemsOf(*list));
  for (ListBox* list : franchise().StatRankLists()) after.push_back(ItemsOf(*list));
  EXPECT_EQ(after, lists);
}

TEST_F(PromotionTest, TheUsersLeagueFollowsTheirTeam) {
  const struct {
    const char* team;
    const char* rank;
  } cases[] = {{"F0 Wolves", "Rank E"}, {"E0 Wolves", "Rank D"}, {"D0 Wolves", "Rank C"},
               {"C0 Wolves", "Rank B"}, {"B0 Wolves", "Rank A"}, {"A5 Wolves", "Rank B"},
               {"B5 Wolves", "Rank C"}, {"C5 Wolves", "Rank D"}, {"D5 Wolves", "Rank E"},
               {"E5 Wolves", "Rank F"}, {"F5 Wolves", "Rank F"}, {"C3 Wolves", "Rank C"}};
  for (const auto& c : cases) {
    for (const char* rank : kRanks) {
      for (const std::string& name : world.FileNames(rank)) {
        std::filesystem::remove(world.TeamPath(rank, name));
      }
    }
    world.FillWorld();
    EndSeasonOf(c.team);
    EXPECT_EQ(franchise().MyRank.Caption(), c.rank) << c.team;
    EXPECT_TRUE(LiesIn(c.team, c.rank)) << c.team;
  }
  EXPECT_TRUE(front_end().Boxes().empty());
  EXPECT_EQ(franchise().Champion.Caption(), "00");
}

TEST_F(PromotionTest, TheUserIsShownUnderTheLeagueInWhichTheyPlayed) {
  EndSeasonOf("F0 Wolves");
  EXPECT_EQ(results().Label24.Caption(), "F0 Wolves");
  EXPECT_EQ(results().List6.List(0), "(0-0-0) F0 Wolves");
}

TEST_F(PromotionTest, AUserWhoWinsTheTopLeagueIsCongratulated) {
  franchise().Champion.SetCaption("2");
  EndSeasonOf("A0 Wolves");
  ASSERT_EQ(front_end().Boxes().size(), 1U);
  EXPECT_EQ(front_end().Boxes()[0].text, "Congrats! You are the best in all the leagues!");
  EXPECT_EQ(front_end().Boxes()[0].icon, BoxIcon::kInformation);
  EXPECT_EQ(front_end().Boxes()[0].buttons, BoxButtons::kOk);
  EXPECT_EQ(franchise().Champion.Caption(), "3");
  EXPECT_EQ(franchise().MyRank.Caption(), "Rank A");
  EXPECT_TRUE(LiesIn("A0 Wolves", "Rank A"));
  EXPECT_EQ(results().Label5.Caption(), "A0 Wolves");
}

TEST_F(PromotionTest, TheTitleIsCountedWhenTheMessageIsClosed) {
  WatchfulFrontEnd watchful;
  Program other(watchful, dice(), world.path());
  other.franchise.TeamName.SetCaption("A0 Wolves");
  other.franchise.LoadNewTeams();
  int boxes = 0;
  watchful.OnBox = [&] {
    ++boxes;
    EXPECT_EQ(other.franchise.Champion.Caption(), "00");
    EXPECT_EQ(other.f_results.Label5.Caption(), "No one");
    EXPECT_EQ(other.f_results.Champ.Caption(), "Denver Skeletons");
    EXPECT_EQ(other.f_results.Label16.Caption(), "B0 Wolves");
    EXPECT_TRUE(LiesIn("A5 Wolves", "Rank A"));
    EXPECT_TRUE(LiesIn("B0 Wolves", "Rank A"));
  };
  other.franchise.theOffSeason();
  EXPECT_EQ(boxes, 1);
  EXPECT_EQ(other.franchise.Champion.Caption(), "1");
}

TEST_F(PromotionTest, TheSeasonCountsUpAndTheScreenIsShown) {
  EXPECT_EQ(franchise().Season.Caption(), "00");
  franchise().theOffSeason();
  EXPECT_EQ(franchise().Season.Caption(), "1");
  EXPECT_EQ(franchise().NextWeek.Caption(), "Draft");
  EXPECT_TRUE(results().Visible());
  EXPECT_TRUE(franchise().Visible());  // the press hides it
  for (const auto& [before, after] : {std::pair{"9", "10"}, {"2.7", "3"}, {"", "1"}, {"x", "1"}}) {
    franchise().Season.SetCaption(before);
    EndSeasonOf("F3 Wolves");
    EXPECT_EQ(franchise().Season.Caption(), after);
  }
}

TEST_F(PromotionTest, ATeamOfTheSameNameInTheNewLeagueIsReplaced) {
  world.WriteTeam("Rank E", "F0 Wolves", MakeRoster(99));
  franchise().theOffSeason();
  EXPECT_EQ(ReadLines(world.TeamPath("Rank E", "F0 Wolves")), MakeRoster(74));
}

TEST_F(PromotionTest, ATableThatIsTooShortKeepsItsBordersClosed) {
  franchise().StatRankD.RemoveItem(5);
  franchise().StatRankB.Clear();
  franchise().theOffSeason();
  EXPECT_EQ(results().Label19.Caption(), "");
  EXPECT_EQ(results().Label16.Caption(), "");
  EXPECT_EQ(results().Label15.Caption(), "");
  EXPECT_TRUE(LiesIn("E0 Wolves", "Rank E"));  // nobody comes down for it
  EXPECT_TRUE(LiesIn("D0 Wolves", "Rank C"));
  EXPECT_TRUE(LiesIn("C5 Wolves", "Rank D"));
  EXPECT_TRUE(LiesIn("C0 Wolves", "Rank C"));
  EXPECT_TRUE(LiesIn("A5 Wolves", "Rank A"));
  for (const char* rank : kRanks) EXPECT_EQ(world.FileNames(rank).size(), 6U) << rank;
  EXPECT_EQ(franchise().Season.Caption(), "1");
  EXPECT_TRUE(results().Visible());
}

TEST_F(PromotionTest, ANameThatLeadsOutOfItsLeagueMovesNothing) {
  WriteText(world.path() + "/letter", "to a friend");
  franchise().StatRankC.SetList(0, "(9-0-0) ../../letter");
  franchise().theOffSeason();
  EXPECT_EQ(ReadText(world.path() + "/letter"), "to a friend");
  EXPECT_TRUE(LiesIn("B5 Wolves", "Rank B"));
}

TEST_F(PromotionTest, ATitleIsAddedToTheNumberAsItStands) {
  for (const auto& [before, after] :
       {std::pair{"2.5", "3.5"}, {"0", "1"}, {"00", "1"}, {"", "1"}, {"-0.25", "0.75"}}) {
    franchise().Champion.SetCaption(before);
    EndSeasonOf("A0 Wolves");
    EXPECT_EQ(franchise().Champion.Caption(), after);
  }
}

TEST_F(PromotionTest, LeavesNothingInSettings) {
  franchise().theOffSeason();
  EXPECT_TRUE(world.SettingsNames().empty());
}

TEST_F(PromotionTest, TheLastOfTheBottomLeagueMayBeMissing) {
  franchise().StatRankF.RemoveItem(5);
  franchise().theOffSeason();
  EXPECT_EQ(results().Label23.Caption(), "");
  EXPECT_EQ(results().Label24.Caption(), "F0 Wolves");
  EXPECT_TRUE(LiesIn("F0 Wolves", "Rank E"));
  EXPECT_TRUE(results().Visible());
}

TEST_F(PromotionTest, AnEndThatWasCutOffGoesOnWhereItWas) {
  // The program ended between two moves; the tables were saved before.
  std::filesystem::rename(world.TeamPath("Rank F", "F0 Wolves"),
                          world.TeamPath("Rank E", "F0 Wolves"));
  for (const char* team : {"F3 Wolves", "F0 Wolves"}) {
    franchise().TeamName.SetCaption(team);
    std::vector<Lines> tables;
    for (ListBox* table : franchise().StatRankLists()) tables.push_back(ItemsOf(*table));
    franchise().LoadNewTeams();
    for (std::size_t league = 0; league < kRanks.size(); ++league) {
      FillList(*franchise().StatRankLists()[league], tables[league]);
    }
    franchise().theOffSeason();
    for (const char* rank : kRanks) EXPECT_EQ(world.FileNames(rank).size(), 6U) << rank;
    EXPECT_TRUE(LiesIn("F0 Wolves", "Rank E"));
    EXPECT_TRUE(LiesIn("E5 Wolves", "Rank F"));
    EXPECT_TRUE(LiesIn("A5 Wolves", "Rank B"));
  }
  // The second time all had moved already.
  EXPECT_EQ(franchise().MyRank.Caption(), "Rank E");
}

TEST_F(PromotionTest, ATeamThatIsNowhereLeavesTheBorderClosed) {
  std::filesystem::remove(world.TeamPath("Rank D", "D0 Wolves"));
  franchise().theOffSeason();
  // "D0 Wolves" can't go up, so "C5 Wolves" stays; all others move.
  EXPECT_TRUE(LiesIn("C5 Wolves", "Rank C"));
  EXPECT_TRUE(LiesIn("C0 Wolves", "Rank B"));
  EXPECT_TRUE(LiesIn("D5 Wolves", "Rank E"));
  EXPECT_EQ(world.FileNames("Rank C").size(), 6U);
  EXPECT_EQ(results().Label20.Caption(), "D0 Wolves");
  EXPECT_EQ(results().Label7.Caption(), "C5 Wolves");
}

TEST_F(PromotionTest, ATeamThatGoesUpMeetsTheTeamsOfItsNewLeagueByTheirNames) {
  EndSeasonOf("F0 Wolves");
  franchise().LoadNewTeams();
  // "D5 Wolves" has come down and stands first, the user's team has come up and stands last.
  EXPECT_EQ(ItemsOf(franchise().RankE),
            (Lines{"D5 Wolves", "E1 Wolves", "E2 Wolves", "E3 Wolves", "E4 Wolves", "F0 Wolves"}));
  const char* const opponents[] = {"E4 Wolves", "E2 Wolves", "E1 Wolves", "E3 Wolves", "D5 Wolves"};
  for (int week = 1; week <= 10; ++week) {
    franchise().NextWeek.SetCaption("Week " + std::to_string(week));
    franchise().GetNextWeek();
    const std::string opponent = opponents[(week - 1) % 5];
    EXPECT_EQ(franchise().OppTeam.Caption(), opponent) << week;
    EXPECT_EQ(ItemsOf(franchise().tempList), ReadLines(world.TeamPath("Rank E", opponent)));
  }
}

TEST_F(PromotionTest, AUserWhoIsLastOfTheBottomLeagueIsNamedAndStays) {
  franchise().TeamName.SetCaption("F5 Wolves");
  franchise().LoadNewTeams();
  franchise().MyRank.SetCaption("not looked at");
  franchise().theOffSeason();
  EXPECT_EQ(results().Label23.Caption(), "F5 Wolves");
  EXPECT_EQ(franchise().MyRank.Caption(), "not looked at");
  EXPECT_TRUE(LiesIn("F5 Wolves", "Rank F"));
}

}  // namespace
}  // namespace frostmark::test
