#include <gtest/gtest.h>

#include <set>

#include "tests/support/game_fixture.h"

// How the screens of the shell look before anybody has touched them.
namespace frostmark::test {
namespace {

class ScreensTest : public GameFixture {
 protected:
  // "Name: caption" of every label and button of SCREEN, in order of declaration.
  static Lines CaptionsOf(const Screen& screen) {
    Lines captions;
    for (const Control* control : screen.Controls()) {
      if (control->Kind() != ControlKind::kLabel && control->Kind() != ControlKind::kButton) {
        continue;
      }
      captions.push_back(control->Name() + ": " +
                         static_cast<const CaptionedControl*>(control)->Caption());
    }
    return captions;
  }
  static std::set<std::string> Hidden(const Screen& screen) {
    std::set<std::string> names;
    for (const Control* control : screen.Controls()) {
      if (!control->Visible()) names.insert(control->Name());
    }
    return names;
  }
};

TEST_F(ScreensTest, NoneIsVisibleBeforeTheStart) {
  EXPECT_TRUE(program().screens.VisibleOnes().empty());
  Lines names;
  for (const Screen* screen : program().screens.All()) names.push_back(screen->Name());
  EXPECT_EQ(names, (Lines{"Startup", "TeamCreator", "FStartGame", "Game", "Franchise", "FPlayer",
                          "FResults", "FDraft", "FSelectDraft"}));
}

TEST_F(ScreensTest, EveryControlHasANameOfItsOwn) {
  for (const Screen* screen : program().screens.All()) {
    std::set<std::string> names;
    for (const Control* control : screen->Controls()) {
      EXPECT_TRUE(names.insert(control->Name()).second) << control->FullName();
      EXPECT_EQ(&*control->place().screen, screen);
    }
  }
}

TEST_F(ScreensTest, StartScreen) {
  EXPECT_EQ(startup().Caption(), "Frostmark");
  EXPECT_EQ(startup().border(), Screen::Border::kNone);
  EXPECT_EQ(CaptionsOf(startup()),
            (Lines{"HighButton1: Single Game", "HighButton2: Franchise", "HighButton3: Exit",
                   "HighButton4: New", "HighButton5: Load", "Label1: https://frostmark.example",
                   "Label2: ", "Label3: \u00D7",
                   "Label4: City:", "Label5: Name:", "Label6: Lead line:", "Label7: Training line:",
                   "Label11: Offense      Defense        Overall", "Label10: 0", "Label9: 0",
                   "Label8: 0", "HighButton7: Generate", "HighButton6: Begin", "Label12: "}));
  EXPECT_EQ(startup().Frame1.Caption(), "Create a team");
  EXPECT_EQ(startup().Text1.Text(), "Montreal");
  EXPECT_EQ(startup().Text1.MaxLength(), 12);
  EXPECT_EQ(startup().Text2.Text(), "Breeze");
  EXPECT_EQ(startup().Text2.MaxLength(), 16);
  EXPECT_EQ(Hidden(startup()), (std::set<std::string>{"HighButton4", "HighButton5", "File1",
                                                      "List3", "List4", "Frame1"}));
  for (const Control* control : startup().Controls()) {
    const Frame* const frame = control->place().frame;
    const std::string& name = control->Name();
    const bool on_panel =
        std::set<std::string>{"Label3", "Label4",  "Text1",       "Label5",     "Text2",   "Label6",
                              "List1",  "Label7",  "List2",       "Label11",    "Label10", "Label9",
                              "Label8", "Label12", "HighButton7", "HighButton6"}
            .contains(name);
    EXPECT_EQ(frame, on_panel ? &startup().Frame1 : nullptr) << name;
  }
}

TEST_F(ScreensTest, Franchise) {
  EXPECT_EQ(franchise().Caption(), "Franchise Mode");
  EXPECT_EQ(franchise().border(), Screen::Border::kNone);
  EXPECT_EQ(franchise().XTab1.Tabs(), (Lines{"Main", "Alerts", "Standings", "Roster"}));
  EXPECT_EQ(franchise().XTab2.Tabs(),
            (Lines{"Rank F", "Rank E", "Rank D", "Rank C", "Rank B", "Rank A"}));
  EXPECT_EQ(CaptionsOf(franchise()),
            (Lines{"Label3: Your Team:",
                   "TeamName: ",
                   "Label20: Your Rank:",
                   "MyRank: Rank F",
                   "Label7: Overall:",
                   "Label9: 00",
                   "Label11: Offense:",
                   "Label12: 00",
                   "Label14: Defense:",
                   "Label15: 00",
                   "Label2: Next week:",
                   "NextWeek: Week 1",
                   "Label4: Opposing Team:",
                   "OppTeam: ",
                   "Label6: Overall:",
                   "OppOverall: 00",
                   "Label8: Offense:",
                   "OppOffense: 00",
                   "Label10: Defense:",
                   "OppDefense: 00",
                   "Label5: Results from this week:",
                   "LooseOrWin: ",
                   "Label19: ",
                   "Label21: Season:",
                   "Season: 00",
                   "Label22: Championships:",
                   "Champion: 00",
                   "Label18: Simulating...",
                   "HighButton1: Begin",
                   "HighButton2: Close",
                   "HighButton3: Save",
                   "Command2: Sim",
                   "Command5: Cancel",
                   "Command6: Min",
                   "Label17: Main:",
                   "Label16: Training:",
                   "Command3: v",
                   "Command4: ^",
                   "Label1:       F           E           D          C          B           A",
                   "Command1: Testing"}));
  EXPECT_EQ(Hidden(franchise()),
            (std::set<std::string>{"Label18", "Command5", "MainList", "TrainList", "RankF", "RankE",
                                   "RankD", "RankC", "RankB", "RankA", "tempList", "Team1", "Team2",
                                   "LineList", "DefList", "Line1Stats", "Line2Stats", "File1"}));
  EXPECT_TRUE(franchise().Command1.Outside());
  EXPECT_TRUE(franchise().Label1.Outside());
  EXPECT_EQ(franchise().Timer1.IntervalMs(), 1000);
  EXPECT_FALSE(franchise().Timer1.Enabled());
}

TEST_F(ScreensTest, FranchiseTabs) {
  const auto expect_page = [this](int page, const std::set<std::string>& names) {
    for (const std::string& name : names) {
      const Control* const control = franchise().Find(name);
      ASSERT_NE(control, nullptr) << name;
      EXPECT_EQ(control->place().tab_strip, &franchise().XTab1) << name;
      EXPECT_EQ(control->place().page, page) << name;
    }
  };
  expect_page(0, {"TeamName", "MyRank", "NextWeek", "OppTeam", "LooseOrWin", "Label18",
                  "HighButton1", "HighButton2", "HighButton3", "Command2", "Command5", "Command6"});
  expect_page(1, {"Alerts"});
  expect_page(2, {"XTab2"});
  expect_page(3, {"MainRoster", "TrainingRoster", "Label16", "Label17", "Command3", "Command4"});
  for (std::size_t league = 0; league < 6; ++league) {
    const ListBox& standings = *franchise().StatRankLists()[league];
    EXPECT_EQ(standings.place().tab_strip, &franchise().XTab2);
    EXPECT_EQ(standings.place().page, static_cast<int>(league));
    EXPECT_EQ(standings.Name(), std::string("StatRank") + kRanks[league][5]);
    EXPECT_EQ(franchise().RankLists()[league]->Name(), std::string("Rank") + kRanks[league][5]);
  }
}

TEST_F(ScreensTest, PlayerPopup) {
  const FPlayer& popup = program().f_player;
  EXPECT_EQ(popup.border(), Screen::Border::kNone);
  EXPECT_EQ(popup.XTab1.Tabs(), (Lines{"Player Stats"}));
  EXPECT_EQ(CaptionsOf(popup),
            (Lines{"Label10: ", "Label7: Overall:", "Label9: ", "Label11: Shooting:", "Label12: ",
                   "Label14: Passing:", "Label15: ", "Label8: Defense:", "Label6: ",
                   "Label4: Agility:", "Label3: ", "Label2: Age:", "Label1: ", "Label5: \u00D7"}));
  EXPECT_EQ(popup.on_close(), Screen::OnClose::kHides);
}

TEST_F(ScreensTest, ClosingAMainWindowEndsTheProgramAndClosingAToolHidesIt) {
  EXPECT_EQ(startup().on_close(), Screen::OnClose::kEndsProgram);
  EXPECT_EQ(franchise().on_close(), Screen::OnClose::kEndsProgram);
  EXPECT_EQ(program().team_creator.on_close(), Screen::OnClose::kHides);
  EXPECT_TRUE(program().team_creator.IsPopup());
  EXPECT_FALSE(franchise().IsPopup());
  // What the turn of the year brings is saved only with the new season.
  EXPECT_EQ(program().f_results.on_close(), Screen::OnClose::kTurnsYear);
  EXPECT_EQ(program().f_draft.on_close(), Screen::OnClose::kTurnsYear);
  EXPECT_FALSE(program().f_draft.IsPopup());
}

}  // namespace
}  // namespace frostmark::test
