#include <algorithm>

#include "tests/match/match_scene.h"

// The Game screen around its machine: set-up, periods, the result, and the two ways out.

namespace frostmark::test {
namespace {

class GameScreenTest : public GameFixture {
 protected:
  Game& game() { return program().game; }

  void SetUp() override {
    FillList(home, MakeRoster(80));
    FillList(visitor, MakeRoster(70));
  }
  void SetUpMatch() { naming().SetUpMatch(home, "Home Team", visitor, "Visitor Team"); }

  // Plays the period of TIMER to its last tick, from the press of "Start" on.
  void PlayPeriod() {
    game().HighButton1.Click();
    front_end().PassTime(std::chrono::milliseconds(100 * 201));
  }
  Lines RunningTimers() {
    Lines running;
    for (Timer* timer : {&game().Timer1, &game().Timer2, &game().Timer3}) {
      if (timer->Enabled()) running.push_back(timer->Name());
    }
    return running;
  }
  std::string Score(const std::string& home_goals, const std::string& visitor_goals) {
    game().Label3.SetCaption(home_goals);
    game().Label4.SetCaption(visitor_goals);
    game().Events.Clear();
    game().Period3.SetValue(200);
    game().TickPeriod3();
    EXPECT_EQ(game().Events.ListCount(), 2);
    EXPECT_EQ(game().Events.List(1), "The match has ended in an amazing battle!");
    return game().Events.List(0);
  }

  RecordList home;
  RecordList visitor;
};

TEST_F(GameScreenTest, TheScreenStartsAsDesigned) {
  EXPECT_EQ(game().Caption(), "Form3");
  EXPECT_EQ(game().XTab1.Tabs(), (std::vector<std::string>{"Roster", "Game"}));
  EXPECT_EQ(game().Label1.Caption(), "Home:");
  EXPECT_EQ(game().Label2.Caption(), "Visitor:");
  EXPECT_EQ(game().HighButton1.Caption(), "Start");
  EXPECT_EQ(game().HighButton2.Caption(), "Close");
  EXPECT_FALSE(game().HighButton2.Visible());
  EXPECT_EQ(game().Label5.Caption(), "x");
  EXPECT_EQ(game().CPUPuck.Caption(), "CPUPuck");
  EXPECT_FALSE(game().CPUPuck.Visible());
  for (const ProgressBar* bar : {&game().Period1, &game().Period2, &game().Period3}) {
    EXPECT_EQ(bar->Max(), 200);
    EXPECT_EQ(bar->Value(), 0);
  }
  for (const Timer* timer : {&game().Timer1, &game().Timer2, &game().Timer3}) {
    EXPECT_EQ(timer->IntervalMs(), 100);
    EXPECT_FALSE(timer->Enabled());
  }
  for (const char* chip : {"vGoalie", "vRDef", "vLDef", "vRFor", "vCenter", "vLFor", "hGoalie",
                           "hRDef", "hLDef", "hRFor", "hCenter", "hLFor"}) {
    EXPECT_EQ(static_cast<Label*>(game().Find(chip))->Caption(), "00") << chip;
  }
}

TEST_F(GameScreenTest, SetUpShowsBothTeams) {
  game().Events.AddItem("old news");
  game().Line1.AddItem("old");
  game().Line2Stats.AddItem("old");
  game().XTab1.SetFront(1);
  game().Label3.SetCaption("5");
  game().Label4.SetCaption("");
  game().Period1.SetValue(200);
  game().Period2.SetValue(3);
  game().Period3.SetValue(9);
  for (Timer* timer : {&game().Timer1, &game().Timer2, &game().Timer3}) timer->Enable();
  game().HighButton1.Hide();
  game().HighButton2.Show();
  SetUpMatch();
  EXPECT_EQ(game().RHome.Caption(), "Home Team");
  EXPECT_EQ(game().GHome.Caption(), "Home Team");
  EXPECT_EQ(game().RVisitor.Caption(), "Visitor Team");
  EXPECT_EQ(game().GVisitor.Caption(), "Visitor Team");
  EXPECT_EQ(game().Events.ListCount(), 0);
  EXPECT_EQ(game().XTab1.Front(), 0);
  EXPECT_EQ(game().Label3.Caption(), "0");
  EXPECT_EQ(game().Label4.Caption(), "0");
  const Lines roster = MakeRoster(80);
  const Lines other = MakeRoster(70);
  EXPECT_EQ(ItemsOf(game().Line1Stats), Lines(roster.begin(), roster.begin() + 6));
  EXPECT_EQ(ItemsOf(game().Line2Stats), Lines(other.begin(), other.begin() + 6));
  EXPECT_EQ(ItemsOf(game().Line1),
            (Lines{"GO - Adam Player (80)", "RD - Brad Player (80)", "LD - Carl Player (80)",
                   "RF - Dean Player (80)", "CF - Earl Player (80)", "LF - Fred Player (80)"}));
  EXPECT_EQ(game().Line2.List(5), "LF - Fred Player (70)");
  for (const ProgressBar* bar : {&game().Period1, &game().Period2, &game().Period3}) {
    EXPECT_EQ(bar->Value(), 0);
  }
  EXPECT_EQ(RunningTimers(), Lines{});
  EXPECT_TRUE(game().HighButton1.Visible());
  EXPECT_FALSE(game().HighButton2.Visible());
  EXPECT_TRUE(game().Visible());
  EXPECT_EQ(front_end().Yields(), 22);  // one a record, on whichever line
  EXPECT_TRUE(dice().Rolls().empty());
}

TEST_F(GameScreenTest, EveryRatingStandsAtItsPlayersPlace) {
  home.Clear();
  visitor.Clear();
  int skill = 61;
  for (const char* position : {"GO", "RD", "LD", "RF", "CF", "LF"}) {
    home.AddItem(MakeRecord({.position = position,
                             .passing = skill,
                             .shooting = skill,
                             .defense = skill,
                             .agility = skill}));
    skill += 1;
  }
  for (int i = 0; i < 6; ++i) {
    std::string record = home.List(i);
    visitor.AddItem(record.replace(record.find(",6"), 2, ",7"));
  }
  SetUpMatch();
  EXPECT_EQ(game().vGoalie.Caption(), "61");
  EXPECT_EQ(game().vRDef.Caption(), "62");
  EXPECT_EQ(game().vLDef.Caption(), "63");
  EXPECT_EQ(game().vRFor.Caption(), "64");
  EXPECT_EQ(game().vCenter.Caption(), "65");
  EXPECT_EQ(game().vLFor.Caption(), "66");
  EXPECT_EQ(game().hGoalie.Caption(), "71");
  EXPECT_EQ(game().hRDef.Caption(), "72");
  EXPECT_EQ(game().hLDef.Caption(), "73");
  EXPECT_EQ(game().hRFor.Caption(), "74");
  EXPECT_EQ(game().hCenter.Caption(), "75");
  EXPECT_EQ(game().hLFor.Caption(), "76");
}

TEST_F(GameScreenTest, OnlyPlayersWithNComeOntoTheIce) {
  for (const char* training : {"", "n", "X", "NN"}) {
    home.AddItem(MakeRecord({.name = "Spectator", .training = training}));
  }
  SetUpMatch();
  EXPECT_EQ(game().Line1Stats.ListCount(), 6);
  EXPECT_EQ(game().Line1.ListCount(), 6);
  EXPECT_EQ(front_end().Yields(), 15 + 11);
}

TEST_F(GameScreenTest, ARatingWithoutItsPlayerKeepsTheLastOne) {
  SetUpMatch();
  RecordList short_line;
  Lines roster = MakeRoster(66);
  roster.erase(roster.begin() + 4);
  FillList(short_line, Lines(roster.begin(), roster.begin() + 5));
  naming().SetUpMatch(short_line, "Short", visitor, "Visitor Team");
  EXPECT_EQ(game().vCenter.Caption(), "80");
  EXPECT_EQ(game().vGoalie.Caption(), "66");
  // A doubled position shows the later of the two.
  home.AddItem(MakeRecord({.position = "CF", .passing = 99, .shooting = 99, .agility = 99}));
  SetUpMatch();
  EXPECT_EQ(game().vCenter.Caption(), "99");
  EXPECT_EQ(game().Line1.ListCount(), 7);
}

TEST_F(GameScreenTest, SetUpKeepsTheStateOfTheMachine) {
  game().PuckPosition = "LF";
  game().PasserName = "somebody";
  game().PassesLeft = 3;
  game().LineList.AddItem("left over");
  SetUpMatch();
  EXPECT_EQ(game().PuckPosition, "LF");
  EXPECT_EQ(game().PasserName, "somebody");
  EXPECT_EQ(game().PassesLeft, 3);
  EXPECT_EQ(game().LineList.ListCount(), 1);
}

TEST_F(GameScreenTest, StartRunsTheTimerOfTheNextPeriod) {
  const struct {
    int played1;
    int played2;
    int played3;
    Lines running;
  } cases[] = {{0, 0, 0, {"Timer1"}}, {200, 0, 0, {"Timer2"}}, {200, 200, 0, {"Timer3"}},
               {100, 0, 0, {}},       {200, 100, 0, {}},       {0, 200, 0, {"Timer1", "Timer3"}}};
  for (const auto& c : cases) {
    SetUpMatch();
    game().Period1.SetValue(c.played1);
    game().Period2.SetValue(c.played2);
    game().Period3.SetValue(c.played3);
    dice().Forget();
    game().HighButton1.Click();
    EXPECT_EQ(RunningTimers(), c.running) << c.played1 << " " << c.played2;
    EXPECT_FALSE(game().HighButton1.Visible());
    EXPECT_EQ(dice().Asked(), (std::vector<int>{2, 6}));
    EXPECT_EQ(game().Events.ListCount(), 1);
  }
}

TEST_F(GameScreenTest, EachPressOfStartFacesOffAndForgetsThePossession) {
  SetUpMatch();
  game().Period1.SetValue(200);
  game().PassesLeft = -1;
  game().PuckTeam = 1;
  dice().Give({2, 6});
  game().HighButton1.Click();
  EXPECT_EQ(game().PassesLeft, 6);
  EXPECT_EQ(game().PuckTeam, 2);
}

TEST_F(GameScreenTest, ATickOfTheFirstPeriodIsALineAtTheBottomAndAStep) {
  SetUpMatch();
  game().PuckPosition = "CF";
  dice().Give({1, 6, 1, 1});
  game().HighButton1.Click();
  front_end().PassTime(std::chrono::milliseconds(99));
  EXPECT_EQ(game().Period1.Value(), 0);
  front_end().PassTime(std::chrono::milliseconds(101));
  EXPECT_EQ(game().Period1.Value(), 2);
  EXPECT_EQ(ItemsOf(game().Events),
            (Lines{"Dean Player passes it to Earl Player", "Earl Player passes it to Dean Player",
                   "Earl Player wins the face off!", "End of the first period!",
                   "End of the first period!"}));
}

TEST_F(GameScreenTest, TheLineIsWrittenBeforeTheStep) {
  SetUpMatch();
  game().HighButton1.Click();
  dice().Give({0});
  EXPECT_THROW(game().TickPeriod1(), std::logic_error);
  EXPECT_EQ(game().Events.List(game().Events.ListCount() - 1), "End of the first period!");
  EXPECT_EQ(game().Period1.Value(), 1);
}

int CountOf(const RecordList& list, const std::string& line) {
  const Lines items = ItemsOf(list);
  return static_cast<int>(std::count(items.begin(), items.end(), line));
}

TEST_F(GameScreenTest, AGameIsThreePeriodsOfTwoHundredSteps) {
  SetUpMatch();
  game().HighButton1.Click();
  front_end().PassTime(std::chrono::milliseconds(100 * 200));
  EXPECT_EQ(game().Period1.Value(), 200);
  EXPECT_FALSE(game().HighButton1.Visible());
  EXPECT_EQ(RunningTimers(), Lines{"Timer1"});
  const int lines = game().Events.ListCount();
  front_end().PassTime(std::chrono::milliseconds(100));
  EXPECT_TRUE(game().HighButton1.Visible());
  EXPECT_EQ(RunningTimers(), Lines{});
  EXPECT_EQ(game().Events.ListCount(), lines);
  EXPECT_EQ(CountOf(game().Events, "End of the first period!"), 200);

  PlayPeriod();
  EXPECT_EQ(game().Period2.Value(), 200);
  EXPECT_TRUE(game().HighButton1.Visible());
  EXPECT_EQ(CountOf(game().Events, "End of the second period!"), 200);
  EXPECT_EQ(CountOf(game().Events, "End of the first period!"), 200);
  EXPECT_EQ(game().Period3.Value(), 0);

  PlayPeriod();
  EXPECT_EQ(game().Period3.Value(), 200);
  EXPECT_EQ(RunningTimers(), Lines{});
  EXPECT_FALSE(game().HighButton1.Visible());
  EXPECT_TRUE(game().HighButton2.Visible());
  EXPECT_EQ(game().Events.List(1), "The match has ended in an amazing battle!");
  // The third period writes no line of its own.
  EXPECT_EQ(CountOf(game().Events, "End of the first period!"), 200);
  EXPECT_EQ(CountOf(game().Events, "End of the second period!"), 200);
  EXPECT_EQ(game().Events.List(game().Events.ListCount() - 1), "End of the second period!");
  // Time goes on and nothing more happens.
  const Lines events = ItemsOf(game().Events);
  front_end().PassTime(std::chrono::seconds(60));
  EXPECT_EQ(ItemsOf(game().Events), events);
}

TEST_F(GameScreenTest, ATickNeverStartsInsideAnother) {
  SetUpMatch();
  game().HighButton1.Click();
  for (int yield = 0; yield < 3; ++yield) {
    front_end().AtYield([this] {
      front_end().PassTime(std::chrono::seconds(1));
      EXPECT_EQ(game().Period1.Value(), 1);
    });
  }
  front_end().PassTime(std::chrono::milliseconds(100));
  EXPECT_EQ(game().Period1.Value(), 1);
}

TEST_F(GameScreenTest, TheResultIsAnnouncedByTheTexts) {
  SetUpMatch();
  EXPECT_EQ(Score("3", "2"), "Home Team beat Visitor Team 3 to 2");
  EXPECT_EQ(Score("2", "3"), "Visitor Team beat Home Team 3 to 2");
  EXPECT_EQ(Score("0", "0"), "Home Team tied the game with Visitor Team at 0");
  EXPECT_EQ(Score("12", "12"), "Home Team tied the game with Visitor Team at 12");
  EXPECT_EQ(Score("10", "9"), "Visitor Team beat Home Team 9 to 10");
  EXPECT_EQ(Score("2", "13"), "Home Team beat Visitor Team 2 to 13");
}

TEST_F(GameScreenTest, CloseOfASingleGameKeepsNoResult) {
  franchise().TeamName.SetCaption("Home Team");
  franchise().LooseOrWin.SetCaption("before");
  franchise().Score1 = 5;
  SetUpMatch();
  game().Label3.SetCaption("3");
  game().HighButton2.Click();
  EXPECT_TRUE(startup().Visible());
  EXPECT_FALSE(game().Visible());
  EXPECT_FALSE(franchise().Visible());
  EXPECT_EQ(franchise().LooseOrWin.Caption(), "before");
  EXPECT_EQ(franchise().Score1, 5);
}

TEST_F(GameScreenTest, CloseOfAFranchiseGameHandsOverTheResult) {
  const struct {
    const char* user;
    const char* home_goals;
    const char* visitor_goals;
    const char* result;
  } cases[] = {
      {"Home Team", "3", "2", "You won 3 - 2"},    {"Home Team", "2", "3", "You lost 2 - 3"},
      {"Home Team", "4", "4", "You tied at 4"},    {"Home Team", "10", "9", "You lost 10 - 9"},
      {"Visitor Team", "2", "3", "You won 3 - 2"}, {"Visitor Team", "3", "2", "You lost 2 - 3"},
      {"Visitor Team", "0", "0", "You tied at 0"}, {"Visitor Team", "10", "9", "You won 9 - 10"},
      {"Other Team", "3", "2", "before"},          {"Other Team", "2", "2", "You tied at 2"}};
  for (const auto& c : cases) {
    franchise().TeamName.SetCaption(c.user);
    franchise().LooseOrWin.SetCaption("before");
    franchise().Hide();
    game().FranchiseMatch = true;
    SetUpMatch();
    game().Label3.SetCaption(c.home_goals);
    game().Label4.SetCaption(c.visitor_goals);
    game().HighButton2.Click();
    EXPECT_EQ(franchise().LooseOrWin.Caption(), c.result) << c.user << c.home_goals;
    EXPECT_EQ(std::to_string(franchise().Score1), c.home_goals);
    EXPECT_EQ(std::to_string(franchise().Score2), c.visitor_goals);
    EXPECT_FALSE(game().FranchiseMatch);
    EXPECT_TRUE(franchise().Visible());
    EXPECT_FALSE(game().Visible());
    EXPECT_FALSE(startup().Visible());
  }
}

TEST_F(GameScreenTest, ATeamAgainstItselfIsTheVisitorInTheEnd) {
  franchise().TeamName.SetCaption("Same Team");
  game().FranchiseMatch = true;
  naming().SetUpMatch(home, "Same Team", home, "Same Team");
  game().Label3.SetCaption("3");
  game().Label4.SetCaption("1");
  game().HighButton2.Click();
  EXPECT_EQ(franchise().LooseOrWin.Caption(), "You lost 1 - 3");
}

TEST_F(GameScreenTest, TheCloseMarkAbandonsTheGameAndKeepsTheFranchiseWaiting) {
  for (const bool franchise_match : {true, false}) {
    game().FranchiseMatch = franchise_match;
    SetUpMatch();
    game().HighButton1.Click();
    front_end().PassTime(std::chrono::seconds(1));
    game().HighButton2.Show();
    game().Timer2.Enable();
    game().Timer3.Enable();
    game().Label5.Click();
    EXPECT_EQ(RunningTimers(), Lines{});
    for (const Label* label : {&game().GVisitor, &game().GHome, &game().Label3, &game().Label4}) {
      EXPECT_EQ(label->Caption(), "") << label->Name();
    }
    EXPECT_EQ(game().RHome.Caption(), "Home Team");
    for (const ListBox* list : {&game().LineList, &game().DefList, &game().Events, &game().Line1,
                                &game().Line2, &game().Line1Stats, &game().Line2Stats}) {
      EXPECT_EQ(list->ListCount(), 0) << list->Name();
    }
    EXPECT_TRUE(game().HighButton1.Visible());
    EXPECT_FALSE(game().HighButton2.Visible());
    EXPECT_TRUE(startup().Visible());
    EXPECT_FALSE(game().Visible());
    EXPECT_EQ(game().FranchiseMatch, franchise_match);
    EXPECT_EQ(game().Period1.Value(), 10);
  }
}

TEST_F(GameScreenTest, TheCloseMarkPressedInsideAStepLeavesTheGameAndHarmsNothing) {
  // Steps of all kinds, each left at each of its yields.
  for (int roll = 1; roll <= 8; ++roll) {
    for (int yield = 0; yield < 24; ++yield) {
      SetUpMatch();
      dice().ThenSeeded(static_cast<std::uint32_t>(roll));
      game().HighButton1.Click();
      front_end().PassTime(std::chrono::milliseconds(100 * roll));
      bool left = false;
      const auto leave = [&] {
        left = true;
        game().Label5.Click();
        EXPECT_EQ(game().LineList.ListCount(), 0);
      };
      for (int before = 0; before < yield; ++before) front_end().AtYield([] {});
      front_end().AtYield(leave);
      front_end().PassTime(std::chrono::milliseconds(100));
      const int played = game().Period1.Value();
      front_end().PassTime(std::chrono::seconds(5));
      if (!left) {  // the step was shorter than that: it happened in the next one
        ADD_FAILURE() << "no step reached its yield " << yield;
        continue;
      }
      EXPECT_EQ(RunningTimers(), Lines{});
      EXPECT_LE(game().Period1.Value(), played + 1);
      EXPECT_FALSE(game().Visible());
      EXPECT_TRUE(startup().Visible());
      EXPECT_TRUE(game().HighButton1.Visible());
      EXPECT_FALSE(game().HighButton2.Visible());
      EXPECT_EQ(game().GHome.Caption(), "");
      startup().Hide();
    }
  }
  // What the rest of such a step has left is gone with the next set-up.
  SetUpMatch();
  EXPECT_EQ(game().Label3.Caption(), "0");
  EXPECT_EQ(game().Label4.Caption(), "0");
  EXPECT_EQ(game().Events.ListCount(), 0);
  EXPECT_EQ(game().Line1Stats.ListCount(), 6);
}

// The walk that puts the lines on the ice goes on to its end, over players who are gone.
TEST_F(GameScreenTest, TheCloseMarkPressedWhileTheLinesComeOnTheIceLeavesEmptyPlaces) {
  SetUpMatch();
  constexpr int kYieldsOfTwoCenters = 12;
  for (int yield = 0; yield < kYieldsOfTwoCenters + 1; ++yield) front_end().AtYield([] {});
  front_end().AtYield([this] {
    ASSERT_EQ(game().LineList.ListCount(), 2);
    game().Label5.Click();
  });
  game().HighButton1.Click();
  EXPECT_EQ(ItemsOf(game().LineList), Lines(4, ""));
  EXPECT_EQ(ItemsOf(game().DefList), Lines(4, ""));
}

TEST_F(GameScreenTest, TheCloseMarkPressedInsideAFaceOffLeavesTheCenterThatWasFound) {
  SetUpMatch();
  for (int yield = 1; yield < 12; ++yield) front_end().AtYield([] {});
  front_end().AtYield([this] { game().Label5.Click(); });
  dice().Give({2, 3});
  game().HighButton1.Click();
  EXPECT_EQ(game().PuckCarrier, visitor.List(4));
  EXPECT_EQ(ItemsOf(game().Events), Lines{"Earl Player wins the face off!"});
  EXPECT_EQ(RunningTimers(), Lines{});
  EXPECT_FALSE(game().Visible());
}

}  // namespace
}  // namespace frostmark::test
