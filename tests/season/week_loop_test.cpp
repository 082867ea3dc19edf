#include <array>
#include <cstdio>
#include <functional>

#include "records/lines/player_line.h"
#include "records/lines/standings_line.h"
#include "tests/support/game_fixture.h"
#include "tests/support/watchful_front_end.h"

// The press of "Begin".

namespace frostmark::test {
namespace {

class WeekLoopTest : public GameFixture {
 protected:
  WeekLoopTest() {
    world.FillWorld();
    TakeOver("Rank F", "F0 Wolves");
    franchise().Show();
    franchise().SimRunning = true;  // nobody watches
    dice().Forget();
  }
  void Begin() { franchise().HighButton1.Click(); }
  std::array<Button*, 6> Buttons() {
    return {&franchise().HighButton1, &franchise().HighButton2, &franchise().HighButton3,
            &franchise().Command2,    &franchise().Command3,    &franchise().Command4};
  }
  int EnabledButtons() {
    int enabled = 0;
    for (const Button* button : Buttons()) enabled += button->Enabled() ? 1 : 0;
    return enabled;
  }
  // Runs ACTION once, at the first yield or so at which IS_TIME.
  void When(std::function<bool()> is_time, std::function<void()> action) {
    front_end().AtYield([=, this] {
      if (is_time()) return action();
      When(is_time, action);
    });
  }
};

TEST_F(WeekLoopTest, TheButtonsBearTheirCaptions) {
  EXPECT_EQ(franchise().HighButton1.Caption(), "Begin");
  EXPECT_EQ(franchise().Command2.Caption(), "Sim");
  EXPECT_EQ(franchise().Command5.Caption(), "Cancel");
  EXPECT_FALSE(franchise().Command5.Visible());
  EXPECT_EQ(franchise().Command1.Caption(), "Testing");
  EXPECT_TRUE(franchise().Command1.Outside());
  EXPECT_EQ(franchise().Label18.Caption(), "Simulating...");
  EXPECT_FALSE(franchise().Label18.Visible());
  EXPECT_EQ(franchise().Timer1.IntervalMs(), 1000);
  EXPECT_FALSE(franchise().Timer1.Enabled());
}

TEST_F(WeekLoopTest, AMissingPositionIsRefused) {
  for (int missing = 0; missing < 6; ++missing) {
    Lines line = MakeRoster(74);
    line.resize(6);
    line.erase(line.begin() + missing);
    FillList(franchise().MainList, line);
    franchise().Command5.Show();
    franchise().LooseOrWin.SetCaption("kept");
    const auto yields = front_end().Yields();
    const Lines files = world.Everything();
    Begin();
    const MessageBox& box = front_end().Boxes().back();
    EXPECT_EQ(box.text, "You are missing a position!");
    EXPECT_EQ(box.icon, BoxIcon::kStop);
    EXPECT_EQ(box.buttons, BoxButtons::kOk);
    EXPECT_FALSE(franchise().Command5.Visible());
    EXPECT_EQ(franchise().NextWeek.Caption(), "Week 1");
    EXPECT_EQ(franchise().LooseOrWin.Caption(), "kept");
    EXPECT_FALSE(franchise().Timer1.Enabled());
    EXPECT_EQ(EnabledButtons(), 6);
    EXPECT_EQ(front_end().Yields() - yields, 5);  // one a record of the lead line
    EXPECT_TRUE(world.Everything() == files);
  }
  EXPECT_EQ(front_end().Boxes().size(), 6U);
  EXPECT_TRUE(dice().Rolls().empty());
}

TEST_F(WeekLoopTest, AMissingPositionIsToldBeforeADoubledOne) {
  franchise().MainList.SetList(4, franchise().MainList.List(3));  // two "RF", no "CF"
  Begin();
  ASSERT_EQ(front_end().Boxes().size(), 1U);
  EXPECT_EQ(front_end().Boxes()[0].text, "You are missing a position!");
}

TEST_F(WeekLoopTest, TheRunEndsWhenTheRefusalIsClosed) {
  WatchfulFrontEnd watchful;
  Program other(watchful, dice(), world.path());
  bool cancel_shows = false;
  watchful.OnBox = [&] { cancel_shows = other.franchise.Command5.Visible(); };
  // Nobody at all, then two of each position.
  for (const int players : {0, 2}) {
    for (int line = 0; line < players; ++line) {
      for (int i = 0; i < 6; ++i) other.franchise.MainList.AddItem(MakeRoster(74)[i]);
    }
    cancel_shows = false;
    other.franchise.Command5.Show();
    watchful.QueueAnswer(players == 0 ? "ok" : "yes");
    other.franchise.PressBegin();
    EXPECT_TRUE(cancel_shows) << players;
    EXPECT_FALSE(other.franchise.Command5.Visible()) << players;
  }
  EXPECT_EQ(watchful.Boxes().size(), 2U);
}

TEST_F(WeekLoopTest, AnUnknownPositionCountsNowhere) {
  franchise().MainList.SetList(4, "Earl Player,cf,74,74,74,74,74,20,N");
  Begin();
  EXPECT_EQ(front_end().Boxes()[0].text, "You are missing a position!");
  TakeOver("Rank F", "F0 Wolves");
  franchise().ClearRoster();
  Lines line = MakeRoster(74);
  line.resize(6);
  line.push_back("Coach,XX,74,74,74,74,74,20,N");
  FillList(franchise().MainList, line);
  Begin();
  EXPECT_EQ(front_end().Boxes().size(), 1U);
  EXPECT_EQ(franchise().NextWeek.Caption(), "Week 2");
}

TEST_F(WeekLoopTest, ADoubledPositionAnsweredWithYesEndsThePress) {
  franchise().MainList.AddItem(franchise().TrainList.List(0));
  franchise().Command5.Show();
  front_end().QueueAnswer("yes");
  Begin();
  ASSERT_EQ(front_end().Boxes().size(), 1U);
  EXPECT_EQ(front_end().Boxes()[0].text,
            "You have too many players on your lineup.\nWould you like to move one to training?");
  EXPECT_EQ(front_end().Boxes()[0].icon, BoxIcon::kInformation);
  EXPECT_EQ(front_end().Boxes()[0].buttons, BoxButtons::kYesNo);
  EXPECT_FALSE(franchise().Command5.Visible());
  EXPECT_EQ(franchise().NextWeek.Caption(), "Week 1");
  EXPECT_TRUE(dice().Rolls().empty());
}

TEST_F(WeekLoopTest, ADoubledPositionAnsweredWithNoIsPlayed) {
  franchise().MainList.AddItem(franchise().TrainList.List(0));
  franchise().Command5.Show();
  front_end().QueueAnswer("no");
  Begin();
  EXPECT_EQ(front_end().Boxes().size(), 1U);
  EXPECT_TRUE(franchise().Command5.Visible());
  EXPECT_EQ(franchise().NextWeek.Caption(), "Week 2");
}

TEST_F(WeekLoopTest, TheMarkerMovesWeekByWeekToTheOffSeason) {
  for (int week = 1; week <= 10; ++week) {
    EXPECT_EQ(franchise().NextWeek.Caption(), "Week " + std::to_string(week));
    Begin();
  }
  EXPECT_EQ(franchise().NextWeek.Caption(), "Off Season");
  for (const ListBox* list : franchise().StatRankLists()) {
    ASSERT_EQ(list->ListCount(), 6);
    for (const std::string& line : ItemsOf(*list)) {
      int wins = 0;
      int losses = 0;
      int ties = 0;
      ASSERT_EQ(std::sscanf(line.c_str(), "(%d-%d-%d)", &wins, &losses, &ties), 3) << line;
      EXPECT_EQ(wins + losses + ties, 10) << line;
    }
  }
}

TEST_F(WeekLoopTest, TheEighteenGamesAreThoseOfTheTableLeagueByLeague) {
  for (int week = 1; week <= 5; ++week) {
    franchise().Alerts.Clear();
    Begin();
    const Lines alerts = ItemsOf(franchise().Alerts);
    ASSERT_EQ(alerts.size(), 18U);
    const int table[5][3][2] = {{{2, 1}, {3, 0}, {4, 5}},
                                {{3, 4}, {0, 1}, {2, 5}},
                                {{0, 4}, {2, 3}, {1, 5}},
                                {{4, 1}, {5, 3}, {0, 2}},
                                {{5, 0}, {1, 3}, {4, 2}}};
    for (std::size_t game = 0; game < 18; ++game) {
      const std::string& line = alerts[17 - game];
      const auto& pair = table[week - 1][game % 3];
      const std::string first = WolvesOf(kRanks[game / 3], pair[0]);
      const std::string second = WolvesOf(kRanks[game / 3], pair[1]);
      EXPECT_EQ(line.substr(0, first.size()), first);
      EXPECT_NE(line.find(" " + second + " "), std::string::npos) << line;
    }
  }
}

TEST_F(WeekLoopTest, TheMarkerStandsStillWhileTheGamesArePlayed) {
  for (int game = 1; game <= 17; ++game) {
    When([this, game] { return franchise().Alerts.ListCount() == game; },
         [this] { EXPECT_EQ(franchise().NextWeek.Caption(), "Week 1"); });
  }
  Begin();
}

TEST_F(WeekLoopTest, DuringThePressTheButtonsAreDead) {
  franchise().LooseOrWin.SetCaption("before");
  franchise().Label19.SetCaption("vs before");
  for (int record = 0; record < 6; ++record) {
    front_end().AtYield([this] {
      EXPECT_EQ(EnabledButtons(), 6);
      EXPECT_EQ(franchise().LooseOrWin.Caption(), "before");
    });
  }
  front_end().AtYield([this] {
    EXPECT_EQ(EnabledButtons(), 0);
    EXPECT_TRUE(franchise().Timer1.Enabled());
    EXPECT_EQ(franchise().LooseOrWin.Caption(), "");
    EXPECT_EQ(franchise().Label19.Caption(), "");
    EXPECT_TRUE(franchise().Command5.Enabled());
    EXPECT_TRUE(franchise().Command6.Enabled());
    // The label blinks, once a second.
    front_end().PassTime(std::chrono::milliseconds(999));
    EXPECT_FALSE(franchise().Label18.Visible());
    front_end().PassTime(std::chrono::milliseconds(1));
    EXPECT_TRUE(franchise().Label18.Visible());
    front_end().PassTime(std::chrono::milliseconds(1000));
    EXPECT_FALSE(franchise().Label18.Visible());
    front_end().PassTime(std::chrono::milliseconds(1000));
    EXPECT_TRUE(franchise().Label18.Visible());
  });
  Begin();
  EXPECT_EQ(EnabledButtons(), 6);
  EXPECT_FALSE(franchise().Timer1.Enabled());
  EXPECT_FALSE(franchise().Label18.Visible());
}

TEST_F(WeekLoopTest, TheRosterIsReadInTwiceAndTheSecondTimeStays) {
  dice().ThenAlways(100);  // nobody trains, so that the file keeps its order
  franchise().MainRoster.Clear();
  franchise().MainRoster.AddItem("an old line");
  // After the games: the first pass adds to what is there, with dead buttons.
  int first_pass = 0;
  int second_pass = 0;
  When([this] { return franchise().MainList.ListCount() == 12; },
       [&] {
         ++first_pass;
         EXPECT_EQ(franchise().TrainList.ListCount(), 5);
         EXPECT_EQ(franchise().MainRoster.ListCount(), 7);
         EXPECT_EQ(EnabledButtons(), 0);
         EXPECT_EQ(franchise().NextWeek.Caption(), "Week 2");
       });
  When([&] { return first_pass == 1 && franchise().MainList.ListCount() == 1; },
       [&] {
         ++second_pass;
         EXPECT_EQ(EnabledButtons(), 6);
         EXPECT_FALSE(franchise().Timer1.Enabled());
         EXPECT_EQ(franchise().TrainList.ListCount(), 0);
       });
  Begin();
  EXPECT_EQ(first_pass, 1);
  EXPECT_EQ(second_pass, 1);
  const Lines roster = ReadLines(world.TeamPath("Rank F", "F0 Wolves"));
  EXPECT_EQ(ItemsOf(franchise().MainList), Lines(roster.begin(), roster.begin() + 6));
  EXPECT_EQ(ItemsOf(franchise().TrainList), Lines(roster.begin() + 6, roster.end()));
  EXPECT_EQ(franchise().MainRoster.ListCount(), 6);
  EXPECT_EQ(franchise().TrainingRoster.ListCount(), 5);
  EXPECT_EQ(franchise().MainRoster.List(0), FormatRosterLine(roster[0]));
}

TEST_F(WeekLoopTest, APressInTheSecondReadingIsPlayedToo) {
  When([this] { return EnabledButtons() == 6 && franchise().TrainingRoster.ListCount() == 5; },
       [this] {
         ASSERT_EQ(franchise().NextWeek.Caption(), "Week 2");
         Begin();
         EXPECT_EQ(franchise().NextWeek.Caption(), "Week 3");
       });
  // The first hit of the condition would be the line-up check of this press: take that away.
  franchise().TrainingRoster.Clear();
  franchise().TrainList.Clear();
  Begin();
  EXPECT_EQ(franchise().NextWeek.Caption(), "Week 3");
  EXPECT_EQ(franchise().Alerts.ListCount(), 28);  // 36, then 31, thinned out by either press
  EXPECT_EQ(EnabledButtons(), 6);
}

TEST_F(WeekLoopTest, TheRosterIsReadFromTheFileBothTimes) {
  When([this] { return franchise().MainList.ListCount() == 12; },
       [this] { world.WriteTeam("Rank F", "F0 Wolves", MakeRoster(99)); });
  Begin();
  EXPECT_EQ(ItemsOf(franchise().tempList), ReadLines(world.TeamPath("Rank F", "F1 Wolves")));
  EXPECT_EQ(franchise().MainRoster.List(0), "GO - Adam Player (99/20)");
  EXPECT_EQ(franchise().Label9.Caption(), "99");
}

TEST_F(WeekLoopTest, TheNewsIsTrimmedBeforeTheNextOpponentIsFound) {
  for (int line = 0; line < 44; ++line) franchise().Alerts.AddItem("old");
  bool trimming = false;
  When(
      [this] {
        return franchise().NextWeek.Caption() == "Week 2" && franchise().Alerts.ListCount() < 62;
      },
      [&] {
        trimming = true;
        EXPECT_EQ(franchise().OppTeam.Caption(), "F3 Wolves");
      });
  Begin();
  EXPECT_TRUE(trimming);
  EXPECT_EQ(franchise().OppTeam.Caption(), "F1 Wolves");
}

TEST_F(WeekLoopTest, ARecordWithAnotherTrainingGoesToNeitherLine) {
  Lines roster = MakeRoster(74);
  roster[8].back() = 'X';
  world.WriteTeam("Rank F", "F0 Wolves", roster);
  Begin();
  EXPECT_EQ(franchise().MainList.ListCount(), 6);
  EXPECT_EQ(franchise().TrainList.ListCount(), 4);
}

TEST_F(WeekLoopTest, TheOwnRatingsFollowTheFile) {
  Lines roster = MakeRoster(74);
  for (std::string& record : roster) record = naming().SetField(record, "Shooting", "9");
  world.WriteTeam("Rank F", "F0 Wolves", roster);
  dice().ThenAlways(110);  // nobody trains
  Begin();
  EXPECT_EQ(franchise().Label9.Caption(), "76");   // 75.5 and the even one
  EXPECT_EQ(franchise().Label12.Caption(), "77");  // (74 + 83 + 74) / 3
  EXPECT_EQ(franchise().Label15.Caption(), "74");
}

TEST_F(WeekLoopTest, TheStandingsAreSortedTheNewsTrimmedAndTheNextOpponentShown) {
  FillList(franchise().StatRankA, {"(0-0-0) A0 Wolves", "(0-0-0) A1 Wolves", "(9-0-0) A2 Wolves"});
  for (int line = 0; line < 44; ++line) franchise().Alerts.AddItem("old");
  Begin();
  EXPECT_EQ(StandingsParts(franchise().StatRankA.List(0)).team, "A2 Wolves");
  EXPECT_EQ(franchise().Alerts.ListCount(), 44);
  EXPECT_EQ(franchise().OppTeam.Caption(), "F1 Wolves");
  EXPECT_EQ(franchise().OppOverall.Caption(), "75");
}

TEST_F(WeekLoopTest, AfterWeekTenTheOpponentsRatingsAreTheUsersOwn) {
  franchise().NextWeek.SetCaption("Week 10");
  franchise().OppTeam.SetCaption("F5 Wolves");
  dice().ThenAlways(110);
  Begin();
  EXPECT_EQ(franchise().NextWeek.Caption(), "Off Season");
  EXPECT_EQ(franchise().OppOverall.Caption(), "74");
  EXPECT_EQ(franchise().OppOverall.Caption(), franchise().Label9.Caption());
  EXPECT_EQ(franchise().OppTeam.Caption(), "F5 Wolves");
  EXPECT_EQ(ItemsOf(franchise().tempList), ReadLines(world.TeamPath("Rank F", "F0 Wolves")));
}

TEST_F(WeekLoopTest, AfterAWatchedWeekTenTheOpponentHasNoName) {
  franchise().SimRunning = false;
  franchise().NextWeek.SetCaption("Week 10");
  franchise().OppTeam.SetCaption("F5 Wolves");
  dice().ThenAlways(110);
  front_end().AtWait([this] { program().game.HighButton2.Click(); });
  Begin();
  EXPECT_EQ(franchise().NextWeek.Caption(), "Off Season");
  EXPECT_EQ(franchise().OppTeam.Caption(), "");
  EXPECT_EQ(franchise().OppOverall.Caption(), "74");
}

TEST_F(WeekLoopTest, InWeekTenEverybodyGrowsAYearOlder) {
  franchise().NextWeek.SetCaption("Week 9");
  Begin();
  EXPECT_NE(ReadText(world.TeamPath("Rank B", "B1 Wolves")).find(",20,N"), std::string::npos);
  Begin();
  EXPECT_EQ(ReadText(world.TeamPath("Rank B", "B1 Wolves")).find(",20,N"), std::string::npos);
  EXPECT_NE(ReadText(world.TeamPath("Rank B", "B1 Wolves")).find(",21,N"), std::string::npos);
}

TEST_F(WeekLoopTest, AnUnknownMarkerPlaysNothingAndRunsTheRest) {
  for (const char* marker : {"", "Week 11", "week 1", "Week 01"}) {
    franchise().NextWeek.SetCaption(marker);
    FillList(franchise().StatRankF, {"(0-1-0) F1 Wolves", "(1-0-0) F2 Wolves"});
    Begin();
    EXPECT_EQ(franchise().NextWeek.Caption(), marker);
    EXPECT_EQ(franchise().Alerts.ListCount(), 0);
    EXPECT_EQ(franchise().StatRankF.List(0), "(1-0-0) F2 Wolves");
    EXPECT_EQ(franchise().MainList.ListCount(), 6);
    EXPECT_TRUE(franchise().Visible());
    EXPECT_FALSE(program().f_results.Visible());
  }
  EXPECT_TRUE(dice().Rolls().empty());
}

TEST_F(WeekLoopTest, ALeftOverDraftMarkerBecomesWeekOne) {
  franchise().NextWeek.SetCaption("Draft");
  Begin();
  EXPECT_EQ(franchise().NextWeek.Caption(), "Week 1");
  EXPECT_TRUE(franchise().Visible());
}

TEST_F(WeekLoopTest, TestingEndsTheSeasonAtTheNextPress) {
  franchise().Command1.Click();
  EXPECT_EQ(franchise().NextWeek.Caption(), "Off Season");
  EXPECT_EQ(franchise().Alerts.ListCount(), 0);
  EXPECT_FALSE(program().f_results.Visible());
  EXPECT_TRUE(dice().Rolls().empty());
}

TEST_F(WeekLoopTest, TheLineUpIsCheckedInTheOffSeasonToo) {
  franchise().NextWeek.SetCaption("Off Season");
  franchise().MainList.RemoveItem(0);
  Begin();
  EXPECT_EQ(front_end().Boxes()[0].text, "You are missing a position!");
  EXPECT_EQ(franchise().NextWeek.Caption(), "Off Season");
  EXPECT_FALSE(program().f_results.Visible());
}

TEST_F(WeekLoopTest, ThePressAtOffSeasonEndsAtWeekOneOnTheHiddenScreen) {
  // The user at position 2 meets position 1 in the first week, and neither of them moves.
  TakeOver("Rank E", "E2 Wolves");
  franchise().ClearRoster();
  for (const std::string& record : MakeRoster(79)) franchise().AddToRoster(record);
  franchise().NextWeek.SetCaption("Off Season");
  franchise().Command5.Show();
  When([this] { return program().f_results.List6.ListCount() == 6; },
       [this] {
         EXPECT_EQ(franchise().NextWeek.Caption(), "Off Season");
         EXPECT_FALSE(franchise().SimRunning);
         EXPECT_FALSE(franchise().Command5.Visible());
         EXPECT_TRUE(franchise().Visible());
         EXPECT_EQ(EnabledButtons(), 0);
       });
  Begin();
  EXPECT_EQ(franchise().NextWeek.Caption(), "Week 1");
  EXPECT_FALSE(franchise().Visible());
  EXPECT_TRUE(program().f_results.Visible());
  EXPECT_EQ(EnabledButtons(), 6);
  EXPECT_EQ(franchise().MainList.ListCount(), 6);
  // The lists stand as before promotion.
  EXPECT_EQ(franchise().RankE.List(0), "E0 Wolves");
  EXPECT_EQ(franchise().OppTeam.Caption(), "E1 Wolves");
  EXPECT_EQ(front_end().Waits(), 0);
}

TEST_F(WeekLoopTest, AnOpponentWhoHasMovedKeepsThePressOpenPermanently) {
  // In "Rank E" the first goes up and the last down. The user at position 3 meets the first.
  TakeOver("Rank E", "E3 Wolves");
  franchise().ClearRoster();
  for (const std::string& record : MakeRoster(80)) franchise().AddToRoster(record);
  franchise().NextWeek.SetCaption("Off Season");
  franchise().OppTeam.SetCaption("the last opponent");
  for (int wait = 0; wait < 7; ++wait) front_end().AtWait([] {});
  front_end().AtWait([this] {
    EXPECT_TRUE(program().f_results.Visible());
    EXPECT_EQ(franchise().NextWeek.Caption(), "Week 1");
    EXPECT_EQ(EnabledButtons(), 6);
    EXPECT_EQ(franchise().MainList.ListCount(), 6);
    EXPECT_EQ(franchise().Label9.Caption(), "80");
    EXPECT_EQ(franchise().OppTeam.Caption(), "the last opponent");
    EXPECT_EQ(ItemsOf(franchise().tempList), Lines{});
  });
  front_end().AtWait([this] {
    EXPECT_EQ(ItemsOf(franchise().tempList), Lines{",,,,,,,,"});
    // The game goes on in the waits of that load: here to its end.
    startup().HighButton3.Click();
  });
  EXPECT_THROW(Begin(), ProgramEnded);
  EXPECT_EQ(front_end().Waits(), 9);
}

}  // namespace
}  // namespace frostmark::test
