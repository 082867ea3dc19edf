#include <gtest/gtest.h>

#include <utility>

#include "tests/support/game_fixture.h"

namespace frostmark::test {
namespace {

class StartScreenTest : public GameFixture {
 protected:
  void SetUp() override { program().Start(); }
};

// Counts the requests to drag a screen.
class Drags : public Screen::Observer {
 public:
  void ScreenChanged(Screen& /*screen*/) override {}
  void DragRequested(Screen& screen) override { names.push_back(screen.Name()); }
  Lines names;
};

TEST_F(StartScreenTest, TheProgramShowsItAndDoesNothingElse) {
  EXPECT_TRUE(startup().Visible());
  EXPECT_EQ(program().screens.VisibleOnes(), (std::vector<Screen*>{&startup()}));
  EXPECT_EQ(ordvik().counts().file_reads, 0);
  EXPECT_EQ(ordvik().counts().rolls, 0);
  EXPECT_EQ(front_end().Yields(), 0);
  EXPECT_TRUE(front_end().Boxes().empty());
}

TEST_F(StartScreenTest, AGameOnDiskIsNotLookedAt) {
  world.FillWorld();
  WriteText(world.SettingsPath("settings.fmk"),
            "[Frostmark]\r\nTeam=F0 Wolves\r\nRank=Rank F\r\nWeek=Week 4\r\n");
  Restart();
  program().Start();
  EXPECT_EQ(ordvik().counts().file_reads, 0);
  EXPECT_EQ(startup().File1.ListCount(), 0);
  EXPECT_EQ(franchise().TeamName.Caption(), "");
  EXPECT_EQ(franchise().NextWeek.Caption(), "Week 1");
}

TEST_F(StartScreenTest, NewAndLoadComeAndGoWithFranchise) {
  EXPECT_FALSE(startup().HighButton4.Visible());
  EXPECT_FALSE(startup().HighButton5.Visible());
  startup().HighButton2.Click();
  EXPECT_TRUE(startup().HighButton4.Visible());
  EXPECT_TRUE(startup().HighButton5.Visible());
  startup().HighButton2.Click();
  EXPECT_FALSE(startup().HighButton4.Visible());
  EXPECT_FALSE(startup().HighButton5.Visible());
}

TEST_F(StartScreenTest, NewAloneDecidesWhetherFranchiseShowsOrHides) {
  startup().HighButton5.Show();
  startup().HighButton2.Click();
  EXPECT_TRUE(startup().HighButton4.Visible());
  EXPECT_TRUE(startup().HighButton5.Visible());
}

TEST_F(StartScreenTest, SingleGameOpensTheChoiceWithEmptyLists) {
  world.FillWorld();
  startup().HighButton1.Click();
  EXPECT_EQ(program().f_start_game.File1.Path(), world.path() + "/Teams");
  EXPECT_EQ(program().f_start_game.File2.Path(), world.path() + "/Teams");
  EXPECT_EQ(program().f_start_game.File1.ListCount(), 0);
  EXPECT_EQ(program().f_start_game.File2.ListCount(), 0);
  EXPECT_TRUE(program().f_start_game.Visible());
  EXPECT_FALSE(startup().Visible());
}

TEST_F(StartScreenTest, ExitEndsTheProgramAtOnceWithoutSavingOrAsking) {
  EXPECT_THROW(startup().HighButton3.Click(), ProgramEnded);
  EXPECT_TRUE(front_end().Boxes().empty());
  EXPECT_TRUE(world.Everything().empty());
}

TEST_F(StartScreenTest, ExitWithAFranchiseBelowItSavesNothing) {
  world.FillWorld();
  TakeOver("Rank F", "F2 Wolves");
  const Lines before = world.Everything();
  franchise().Show();
  franchise().HighButton2.Click();
  EXPECT_TRUE(startup().Visible());
  EXPECT_THROW(startup().HighButton3.Click(), ProgramEnded);
  EXPECT_EQ(world.Everything(), before);
  EXPECT_TRUE(front_end().Boxes().empty());
}

// Which screens come and go, in order.
class ComingsAndGoings : public Screen::Observer {
 public:
  explicit ComingsAndGoings(const ScreenList& screens) {
    for (Screen* screen : screens.All()) screen->SetObserver(this);
  }
  void ScreenChanged(Screen& screen) override {
    events.push_back((screen.Visible() ? "show " : "hide ") + screen.Name());
  }
  void DragRequested(Screen& /*screen*/) override {}
  Lines Taken() { return std::exchange(events, {}); }
  Lines events;
};

TEST_F(StartScreenTest, OneScreenComesAndTheOtherGoesInTheOrderOfEachWay) {
  world.FillWorld();
  TakeOver("Rank F", "F2 Wolves");
  franchise().SaveGame();
  Restart();
  program().Start();
  ComingsAndGoings watch(program().screens);
  const auto press = [&](Button& button) {
    button.OnClick();
    return watch.Taken();
  };
  EXPECT_EQ(press(startup().HighButton1), (Lines{"show FStartGame", "hide Startup"}));
  program().f_start_game.Label2.OnClick();
  EXPECT_EQ(watch.Taken(), (Lines{"hide FStartGame", "show Startup"}));
  EXPECT_EQ(press(startup().HighButton5), (Lines{"hide Startup", "show Franchise"}));
  EXPECT_EQ(press(franchise().HighButton2), (Lines{"hide Franchise", "show Startup"}));
  EXPECT_EQ(press(startup().HighButton6), (Lines{"hide Startup", "show Franchise"}));

  Game& game = program().game;
  franchise().Hide();
  for (const bool of_franchise : {false, true}) {
    startup().Hide();
    franchise().Hide();
    game.Show();
    game.FranchiseMatch = of_franchise;
    watch.Taken();
    EXPECT_EQ(press(game.HighButton2),
              (Lines{of_franchise ? "show Franchise" : "show Startup", "hide Game"}));
  }
  game.Show();
  watch.Taken();
  game.Label5.OnClick();
  EXPECT_EQ(watch.Taken(), (Lines{"show Startup", "hide Game"}));
  for (Screen* screen : program().screens.All()) screen->SetObserver(nullptr);
}

TEST_F(StartScreenTest, TheAddressOpensTheWebPage) {
  startup().Label1.Click();
  EXPECT_EQ(front_end().WebPages(), (Lines{startup().Label1.Caption()}));
}

TEST_F(StartScreenTest, TheHotSpotOpensTheToolBesideTheStartScreen) {
  startup().Label2.Click();
  EXPECT_TRUE(program().team_creator.Visible());
  EXPECT_TRUE(startup().Visible());
}

TEST_F(StartScreenTest, ScreensWithoutAFrameAreDraggedByBackgroundOrTabs) {
  Drags drags;
  for (Screen* screen : program().screens.All()) screen->SetObserver(&drags);
  startup().OnMouseDown();
  franchise().OnMouseDown();
  franchise().XTab1.OnMouseDown();
  program().f_player.XTab1.OnMouseDown();
  EXPECT_EQ(drags.names, (Lines{"Startup", "Franchise", "Franchise", "FPlayer"}));
}

}  // namespace
}  // namespace frostmark::test
