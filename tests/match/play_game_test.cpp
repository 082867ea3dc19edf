#include <algorithm>
#include <filesystem>
#include <functional>

#include "records/lines/standings_line.h"
#include "records/runtime_error.h"
#include "tests/match/match_scene.h"

// PlayGame: a game with all its consequences.

namespace frostmark::test {
namespace {

class PlayGameTest : public GameFixture {
 protected:
  PlayGameTest() {
    world.FillWorld();
    TakeOver("Rank F", "F0 Wolves");
    dice().Forget();
  }
  Game& game() { return program().game; }

  std::string PathOf(const std::string& team) {
    return world.TeamPath("Rank " + team.substr(0, 1), team);
  }

  // Plays a watched game of the user's that ends HOME_GOALS to VISITOR_GOALS.
  void Watch(const std::string& name1, const std::string& name2, const std::string& home_goals,
             const std::string& visitor_goals) {
    front_end().AtWait([=, this] {
      game().Label3.SetCaption(home_goals);
      game().Label4.SetCaption(visitor_goals);
      game().HighButton2.Click();
    });
    franchise().PlayGame(name1, name2, "F");
  }

  // Lets TEAM score again and again, while its defencemen let no shot of OTHER's through.
  void MakeUneven(const std::string& team, const std::string& other) {
    world.WriteTeam("Rank F", team, LeadLine(1, {.shooting = 100, .defense = 110, .goalie = 99}));
    world.WriteTeam("Rank F", other, LeadLine(2, {.shooting = 50, .defense = 0, .goalie = 50}));
  }

  std::string Standing(const std::string& team) {
    for (const std::string& line : ItemsOf(franchise().StatRankF)) {
      if (StandingsParts(line).team == team) return line;
    }
    return "";
  }
};

TEST_F(PlayGameTest, AGameOfOthersIsSimulatedAndCounted) {
  MakeUneven("F1 Wolves", "F2 Wolves");
  franchise().LooseOrWin.SetCaption("before");
  franchise().Label19.SetCaption("vs before");
  franchise().PlayGame("F1 Wolves", "F2 Wolves", "F");
  EXPECT_EQ(front_end().Waits(), 0);
  EXPECT_FALSE(game().Visible());
  ASSERT_GT(franchise().Score1, 0);
  EXPECT_EQ(franchise().Score2, 0);
  EXPECT_EQ(Standing("F1 Wolves"), "(1-0-0) F1 Wolves");
  EXPECT_EQ(Standing("F2 Wolves"), "(0-1-0) F2 Wolves");
  EXPECT_EQ(Standing("F0 Wolves"), "(0-0-0) F0 Wolves");
  EXPECT_EQ(ItemsOf(franchise().Alerts),
            Lines{"F1 Wolves beat F2 Wolves " + std::to_string(franchise().Score1) + " to 0"});
  EXPECT_EQ(franchise().LooseOrWin.Caption(), "before");
  EXPECT_EQ(franchise().Label19.Caption(), "vs before");
}

TEST_F(PlayGameTest, ALossIsToldFromTheFirstTeamsView) {
  MakeUneven("F2 Wolves", "F1 Wolves");
  franchise().PlayGame("F1 Wolves", "F2 Wolves", "F");
  EXPECT_EQ(franchise().Alerts.List(0),
            "F1 Wolves lost to F2 Wolves 0 to " + std::to_string(franchise().Score2));
  EXPECT_EQ(Standing("F2 Wolves"), "(1-0-0) F2 Wolves");
}

TEST_F(PlayGameTest, ANilNilTieStands) {
  world.WriteTeam("Rank F", "F1 Wolves", LeadLine(1, {.shooting = 0}));
  world.WriteTeam("Rank F", "F2 Wolves", LeadLine(2, {.shooting = 0}));
  franchise().PlayGame("F1 Wolves", "F2 Wolves", "F");
  EXPECT_EQ(franchise().Alerts.List(0), "F1 Wolves tied F2 Wolves at 0");
  EXPECT_EQ(Standing("F1 Wolves"), "(0-0-1) F1 Wolves");
  EXPECT_EQ(Standing("F2 Wolves"), "(0-0-1) F2 Wolves");
}

TEST_F(PlayGameTest, TheNewestLineStandsOnTop) {
  franchise().Alerts.AddItem("old");
  franchise().PlayGame("F1 Wolves", "F2 Wolves", "F");
  ASSERT_EQ(franchise().Alerts.ListCount(), 2);
  EXPECT_EQ(franchise().Alerts.List(1), "old");
}

TEST_F(PlayGameTest, TheScoresAreZeroWhileASimulatedGameRuns) {
  franchise().Score1 = 5;
  franchise().Score2 = 6;
  dice().Give({0});
  EXPECT_THROW(franchise().PlayGame("F1 Wolves", "F2 Wolves", "F"), std::logic_error);
  EXPECT_EQ(franchise().Score1, 0);
  EXPECT_EQ(franchise().Score2, 0);
}

TEST_F(PlayGameTest, TheRatingsThatStayAreTheSecondTeams) {
  const int own = naming().TeamOverall;
  franchise().PlayGame("F1 Wolves", "F5 Wolves", "F");
  EXPECT_EQ(naming().TeamOverall, 79);
  EXPECT_NE(own, 79);
}

TEST_F(PlayGameTest, OldRostersAreForgotten) {
  franchise().Team1.AddItem("left over");
  franchise().Team2.AddItem("left over");
  franchise().PlayGame("F1 Wolves", "F2 Wolves", "F");
  EXPECT_EQ(ItemsOf(franchise().Team1), ReadLines(PathOf("F1 Wolves")));
  EXPECT_EQ(ItemsOf(franchise().Team2), ReadLines(PathOf("F2 Wolves")));
}

TEST_F(PlayGameTest, BothTeamsAreTrainedTheFirstOneFirst) {
  const Lines first = ReadLines(PathOf("F0 Wolves"));
  const Lines second = ReadLines(PathOf("F1 Wolves"));
  dice().Give(6, 100);      // the first team: its goalie and five on the training line
  dice().Give({20, 1, 4});  // the second team's goalie gains 4 in Passing
  dice().Give(5, 100);
  Watch("F0 Wolves", "F1 Wolves", "1", "0");
  EXPECT_EQ(dice().Asked(),
            (std::vector<int>{100, 100, 100, 100, 100, 100, 100, 2, 4, 100, 100, 100, 100, 100}));
  EXPECT_EQ(ReadLines(PathOf("F0 Wolves")), first);
  EXPECT_NE(ReadLines(PathOf("F1 Wolves")), second);
  EXPECT_EQ(ReadLines(PathOf("F1 Wolves")).front(), "Adam Player,GO,77,79,75,75,75,20,N");
}

TEST_F(PlayGameTest, EveryLeagueHasItsLetter) {
  for (std::size_t league = 0; league < kRanks.size(); ++league) {
    const std::string letter(1, kRanks[league][5]);
    const ListBox& standings = *franchise().StatRankLists()[league];
    const Lines before = ItemsOf(standings);
    const auto writes = ordvik().counts().file_writes;
    franchise().PlayGame(letter + "3 Wolves", letter + "4 Wolves", letter);
    EXPECT_NE(ItemsOf(standings), before) << letter;
    EXPECT_EQ(ordvik().counts().file_writes, writes + 2);
    for (std::size_t other = league + 1; other < kRanks.size(); ++other) {
      EXPECT_EQ(franchise().StatRankLists()[other]->List(3).substr(0, 7), "(0-0-0)");
    }
  }
}

TEST_F(PlayGameTest, AnyOtherLetterCountsAndTrainsNothing) {
  std::filesystem::create_directory(world.path() + "/Teams/Rank G");
  world.WriteTeam("Rank G", "F1 Wolves", MakeRoster(80));
  world.WriteTeam("Rank G", "F2 Wolves", MakeRoster(80));
  const auto writes = ordvik().counts().file_writes;
  franchise().PlayGame("F1 Wolves", "F2 Wolves", "G");
  EXPECT_EQ(Standing("F1 Wolves"), "(0-0-0) F1 Wolves");
  EXPECT_EQ(ordvik().counts().file_writes, writes);
  EXPECT_EQ(franchise().Alerts.ListCount(), 1);
}

TEST_F(PlayGameTest, TheUsersGameIsWatched) {
  franchise().OppTeam.SetCaption("F1 Wolves");
  franchise().Show();
  front_end().AtWait([this] {
    EXPECT_TRUE(game().FranchiseMatch);
    EXPECT_TRUE(game().Visible());
    EXPECT_TRUE(game().HighButton1.Visible());
    EXPECT_EQ(game().GHome.Caption(), "F0 Wolves");
    EXPECT_EQ(game().GVisitor.Caption(), "F1 Wolves");
    EXPECT_EQ(game().Line1Stats.ListCount(), 6);
    for (const Label* label : {&franchise().OppTeam, &franchise().OppOverall,
                               &franchise().OppOffense, &franchise().OppDefense}) {
      EXPECT_EQ(label->Caption(), "") << label->Name();
    }
    EXPECT_TRUE(dice().Rolls().empty());
    game().Label3.SetCaption("2");
    game().HighButton2.Click();
  });
  franchise().PlayGame("F0 Wolves", "F1 Wolves", "F");
  EXPECT_EQ(franchise().Score1, 2);
  EXPECT_EQ(franchise().LooseOrWin.Caption(), "You won 2 - 0");
  EXPECT_EQ(franchise().Label19.Caption(), "vs F1 Wolves");
  EXPECT_EQ(franchise().Alerts.List(0), "F0 Wolves beat F1 Wolves 2 to 0");
}

TEST_F(PlayGameTest, AWholeGameIsPlayedInTheWait) {
  front_end().AtWait([this] { game().HighButton1.Click(); });
  for (int wait = 0; wait < 201; ++wait)
    front_end().AtWait([this] { front_end().PassTime(std::chrono::milliseconds(100)); });
  front_end().AtWait([this] {
    EXPECT_EQ(game().Period1.Value(), 200);
    EXPECT_TRUE(game().HighButton1.Visible());
    for (int period = 0; period < 2; ++period) {
      game().HighButton1.Click();
      front_end().PassTime(std::chrono::milliseconds(100 * 201));
    }
    EXPECT_TRUE(game().HighButton2.Visible());
    game().HighButton2.Click();
  });
  franchise().PlayGame("F0 Wolves", "F1 Wolves", "F");
  EXPECT_EQ(front_end().Waits(), 203);
  EXPECT_NE(franchise().LooseOrWin.Caption(), "");
}

TEST_F(PlayGameTest, TheUsersResultIsToldFromTheirView) {
  const struct {
    bool home;
    const char* home_goals;
    const char* visitor_goals;
    const char* result;
    const char* alert;
  } cases[] = {
      {true, "3", "2", "You won 3 - 2", "F0 Wolves beat F1 Wolves 3 to 2"},
      {true, "2", "3", "You lost 2 - 3", "F0 Wolves lost to F1 Wolves 2 to 3"},
      {true, "0", "0", "You tied at 0", "F0 Wolves tied F1 Wolves at 0"},
      {true, "10", "9", "You won 10 - 9", "F0 Wolves beat F1 Wolves 10 to 9"},
      {true, "9", "10", "You lost 9 - 10", "F0 Wolves lost to F1 Wolves 9 to 10"},
      {false, "2", "3", "You won 3 - 2", "F1 Wolves lost to F0 Wolves 2 to 3"},
      {false, "3", "2", "You lost 2 - 3", "F1 Wolves beat F0 Wolves 3 to 2"},
      {false, "4", "4", "You tied at 4", "F1 Wolves tied F0 Wolves at 4"},
  };
  for (const auto& c : cases) {
    Watch(c.home ? "F0 Wolves" : "F1 Wolves", c.home ? "F1 Wolves" : "F0 Wolves", c.home_goals,
          c.visitor_goals);
    EXPECT_EQ(franchise().LooseOrWin.Caption(), c.result);
    EXPECT_EQ(franchise().Label19.Caption(), "vs F1 Wolves");
    EXPECT_EQ(franchise().Alerts.List(0), c.alert);
  }
  EXPECT_EQ(Standing("F0 Wolves"), "(3-3-2) F0 Wolves");
}

TEST_F(PlayGameTest, InASimRunTheUsersGameIsNotWatched) {
  MakeUneven("F0 Wolves", "F1 Wolves");
  franchise().SimRunning = true;
  franchise().OppTeam.SetCaption("F1 Wolves");
  franchise().PlayGame("F1 Wolves", "F0 Wolves", "F");
  EXPECT_EQ(front_end().Waits(), 0);
  EXPECT_FALSE(game().Visible());
  EXPECT_FALSE(game().FranchiseMatch);
  EXPECT_EQ(franchise().LooseOrWin.Caption(),
            "You won " + std::to_string(franchise().Score2) + " - 0");
  EXPECT_EQ(franchise().Label19.Caption(), "vs F1 Wolves");
  EXPECT_EQ(franchise().OppTeam.Caption(), "F1 Wolves");  // only a watched game empties it
}

TEST_F(PlayGameTest, NamesAreTheUsersOnlyWhenTheyAreEqual) {
  franchise().TeamName.SetCaption("f1 wolves");
  franchise().PlayGame("F1 Wolves", "F2 Wolves", "F");
  EXPECT_EQ(front_end().Waits(), 0);
  EXPECT_EQ(franchise().LooseOrWin.Caption(), "");
}

TEST_F(PlayGameTest, AnAbandonedGameWaitsUnderTheStartScreenForTheNext) {
  franchise().Score1 = 4;  // of the game before
  franchise().Score2 = 1;
  front_end().AtWait([this] {
    game().HighButton1.Click();
    front_end().PassTime(std::chrono::seconds(5));
    game().Label5.Click();
  });
  front_end().AtWait([this] {
    EXPECT_TRUE(game().FranchiseMatch);
    EXPECT_TRUE(startup().Visible());
    EXPECT_EQ(Standing("F0 Wolves"), "(0-0-0) F0 Wolves");
    startup().HighButton1.Click();
    FStartGame& choice = program().f_start_game;
    choice.List3.Select(5);
    choice.File1.Select(0);
    choice.List4.Select(5);
    choice.File2.Select(1);
    choice.HighButton1.Click();
    EXPECT_EQ(Standing("F0 Wolves"), "(0-0-0) F0 Wolves");
  });
  franchise().PlayGame("F0 Wolves", "F1 Wolves", "F");
  EXPECT_EQ(front_end().Waits(), 2);
  EXPECT_EQ(Standing("F0 Wolves"), "(1-0-0) F0 Wolves");
  EXPECT_EQ(franchise().LooseOrWin.Caption(), "You won 4 - 1");
  EXPECT_EQ(franchise().Alerts.List(0), "F0 Wolves beat F1 Wolves 4 to 1");
  // The single game is set up all the same.
  EXPECT_TRUE(game().Visible());
  EXPECT_EQ(game().GHome.Caption(), "A0 Wolves");
}

TEST_F(PlayGameTest, ARosterWithTextForANumberEndsTheProgramWithoutWriting) {
  Lines broken = MakeRoster(75);
  broken[3] = "Dean Player,RF,75,75,lots,75,75,20,N";
  broken[4] = "Earl Player,CF,75,75,lots,75,75,20,N";
  broken[5] = "Fred Player,LF,75,75,lots,75,75,20,N";
  world.WriteTeam("Rank F", "F1 Wolves", broken);
  const Lines files = world.Everything();
  EXPECT_THROW(franchise().PlayGame("F1 Wolves", "F2 Wolves", "F"), RuntimeError);
  EXPECT_TRUE(world.Everything() == files);
  EXPECT_EQ(franchise().Alerts.ListCount(), 0);
}

TEST_F(PlayGameTest, AMissingTeamFileIsReadWithoutEnd) {
  struct Left {};
  front_end().AtWait([] {});
  front_end().AtWait([] { throw Left(); });
  EXPECT_THROW(franchise().PlayGame("F1 Wolves", "No Such Team", "F"), Left);
  EXPECT_EQ(franchise().Team1.ListCount(), 11);
  EXPECT_EQ(franchise().Alerts.ListCount(), 0);
}

TEST_F(PlayGameTest, ABadLineInTheStandingsEndsTheProgramBeforeAFileIsWritten) {
  FillList(franchise().StatRankF, {"F1 Wolves", "(0-0-0) F2 Wolves"});
  franchise().LooseOrWin.SetCaption("before");
  const Lines files = world.Everything();
  const auto writes = ordvik().counts().file_writes;
  EXPECT_THROW(franchise().PlayGame("F1 Wolves", "F2 Wolves", "F"), RuntimeError);
  EXPECT_EQ(ordvik().counts().file_writes, writes);
  EXPECT_TRUE(world.Everything() == files);
  EXPECT_EQ(franchise().Alerts.ListCount(), 0);
  EXPECT_EQ(franchise().LooseOrWin.Caption(), "before");
}

// Looks on when a line comes into a list.
class OnInsertion : public RecordList::Observer {
 public:
  explicit OnInsertion(std::function<void()> look) : look_(std::move(look)) {}
  void ItemInserted(int /*index*/) override { look_(); }
  void ItemRemoved(int /*index*/) override {}
  void ItemChanged(int /*index*/) override {}
  void Cleared() override {}
  void SelectionChanged() override {}

 private:
  std::function<void()> look_;
};

TEST_F(PlayGameTest, StandingsTrainingResultAndNewsFollowInThisOrder) {
  franchise().LooseOrWin.SetCaption("before");
  dice().ThenAlways(100);  // nobody trains
  front_end().AtWait([this] {
    game().Label3.SetCaption("3");
    game().Label4.SetCaption("1");
    game().HighButton2.Click();
    franchise().LooseOrWin.SetCaption("before");
    WriteText(PathOf("F0 Wolves"), "");
    WriteText(PathOf("F1 Wolves"), "");
    // The standings' two searches: the winner is found at once, the loser's walk is six.
    for (int yield = 0; yield < 6; ++yield) {
      front_end().AtYield([this] { EXPECT_EQ(Standing("F0 Wolves"), "(1-0-0) F0 Wolves"); });
    }
    // Then the two trainings: players, the picking of the computer's lines, lines of the file.
    for (const int yields : {11 + 11, 11 + 10 * 10 + 11}) {
      for (int yield = 0; yield < yields; ++yield) {
        front_end().AtYield([=, this] {
          EXPECT_EQ(Standing("F1 Wolves"), "(0-1-0) F1 Wolves");
          EXPECT_EQ(ReadLines(PathOf("F0 Wolves")).size(), yields == 22 ? 0U : 11U);
          EXPECT_EQ(ReadLines(PathOf("F1 Wolves")).size(), 0U);
          EXPECT_EQ(franchise().LooseOrWin.Caption(), "before");
          EXPECT_EQ(franchise().Alerts.ListCount(), 0);
        });
      }
    }
  });
  int news = 0;
  OnInsertion watch([&] {
    ++news;
    EXPECT_EQ(franchise().LooseOrWin.Caption(), "You won 3 - 1");
    EXPECT_EQ(franchise().Label19.Caption(), "vs F1 Wolves");
    EXPECT_EQ(ReadLines(PathOf("F1 Wolves")).size(), 11U);
  });
  franchise().Alerts.SetObserver(&watch);
  franchise().PlayGame("F0 Wolves", "F1 Wolves", "F");
  franchise().Alerts.SetObserver(nullptr);
  EXPECT_EQ(news, 1);
}

TEST_F(PlayGameTest, TheGameIsTheFranchisesBeforeItIsSetUpAndTheOpponentGoesOnlyThen) {
  franchise().OppTeam.SetCaption("F1 Wolves");
  constexpr int kYieldsOfLoading = 2 * 11 * 9;
  for (int yield = 0; yield < kYieldsOfLoading; ++yield) {
    front_end().AtYield([this] { EXPECT_FALSE(game().FranchiseMatch); });
  }
  int looks = 0;
  for (int yield = 0; yield < 22; ++yield) {  // the set-up of both lines
    front_end().AtYield([&] {
      ++looks;
      EXPECT_TRUE(game().FranchiseMatch);
      EXPECT_EQ(game().GHome.Caption(), "F0 Wolves");
      EXPECT_EQ(franchise().OppTeam.Caption(), "F1 Wolves");
      EXPECT_NE(franchise().OppOverall.Caption(), "");
      EXPECT_FALSE(game().Visible());
    });
  }
  front_end().AtWait([&] {
    EXPECT_EQ(looks, 22);
    EXPECT_EQ(franchise().OppTeam.Caption(), "");
    game().HighButton2.Click();
  });
  franchise().PlayGame("F0 Wolves", "F1 Wolves", "F");
}

TEST_F(PlayGameTest, AGameThatWasAbandonedForALoadGoesOnWaitingUnderTheLoadedFranchise) {
  franchise().NextWeek.SetCaption("Week 2");  // plays (0, 1)
  franchise().SaveGame();
  WriteText(world.SettingsPath("StatRankF.fmk"), "(4-0-0) F0 Wolves\r\n(0-4-0) F1 Wolves\r\n");
  franchise().Show();
  front_end().AtWait([this] {
    game().HighButton1.Click();
    front_end().PassTime(std::chrono::seconds(5));
    game().Label5.Click();
    startup().HighButton2.Click();
    startup().HighButton5.Click();
    EXPECT_TRUE(franchise().Visible());
    EXPECT_FALSE(startup().Visible());
    EXPECT_TRUE(game().FranchiseMatch);
    EXPECT_EQ(franchise().MainList.ListCount(), 12);  // a second load adds to the rosters
    EXPECT_EQ(Standing("F0 Wolves"), "(4-0-0) F0 Wolves");
  });
  front_end().AtWait([this] {
    EXPECT_TRUE(game().FranchiseMatch);
    EXPECT_EQ(franchise().Alerts.ListCount(), 0);
    game().FranchiseMatch = false;  // as the next single game has it
  });
  franchise().Score1 = 2;
  franchise().Score2 = 0;
  franchise().PlayGame("F0 Wolves", "F1 Wolves", "F");
  EXPECT_EQ(front_end().Waits(), 2);
  // The game counts, in the standings that were loaded meanwhile.
  EXPECT_EQ(Standing("F0 Wolves"), "(5-0-0) F0 Wolves");
  EXPECT_EQ(Standing("F1 Wolves"), "(0-5-0) F1 Wolves");
  EXPECT_EQ(franchise().Alerts.List(0), "F0 Wolves beat F1 Wolves 2 to 0");
}

}  // namespace
}  // namespace frostmark::test
