#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QApplication>
#include <QLabel>
#include <QListView>
#include <QTabBar>
#include <QTabWidget>
#include <QtTest>

#include "tests/desktop/person.h"
#include "tests/desktop/window_game.h"

namespace frostmark::test {
namespace {

// Somebody who begins a franchise and plays a season of it through its windows alone.
class SeasonInWindows : public testing::Test {
 protected:
  SeasonInWindows() {
    game_.Start();
    Settle();
  }

  Program& program() { return game_.program(); }
  Franchise& franchise() { return game_.program().franchise; }
  Game& match() { return game_.program().game; }
  FResults& results() { return game_.program().f_results; }

  QAbstractButton& Button(const Screen& screen, const char* name) {
    return game_.On<QAbstractButton>(screen, name);
  }
  QListView& List(const Screen& screen, const char* name) {
    return game_.On<QListView>(screen, name);
  }
  QTabBar& Tabs(const Screen& screen, const char* name) {
    return *game_.On<QTabWidget>(screen, name).tabBar();
  }
  void ClickTab(const Screen& screen, const char* name, int tab) {
    QTabBar& bar = Tabs(screen, name);
    QTest::mouseClick(&bar, Qt::LeftButton, Qt::NoModifier, bar.tabRect(tab).center());
  }

  // Lets the periods of a match run through at once, as often as one is on.
  static void RunPeriod(Timer& timer) {
    while (timer.Enabled()) timer.Tick();
  }
  bool MatchIsOn() {
    return match().Visible() && match().HighButton1.Visible() &&
           Person::HasBefore(game_.Window(match()));
  }

  WindowGame game_;
};

TEST_F(SeasonInWindows, ByMouse) {
  {
    Person person(game_.front_end());
    person.ClickInBox("OK");  // a new world takes a while
    Person::Click(Button(program().startup, "HighButton2"));
    Person::Click(Button(program().startup, "HighButton4"));
    person.ClickInBox("OK");  // the file is saved
    Person::Click(Button(program().startup, "HighButton7"));
    Person::Click(Button(program().startup, "HighButton6"));
  }
  ASSERT_TRUE(franchise().Visible());
  EXPECT_EQ(game_.On<QLabel>(franchise(), "TeamName").text(), "Montreal Breeze");

  // The line-up: a player goes to training and comes back.
  ClickTab(franchise(), "XTab1", 3);
  EXPECT_EQ(franchise().XTab1.Front(), 3);
  Person::ClickRow(List(franchise(), "MainRoster"), 1);
  Person::Click(Button(franchise(), "Command3"));
  EXPECT_EQ(franchise().TrainingRoster.ListCount(), 6);
  Person::ClickRow(List(franchise(), "TrainingRoster"), 5);
  Person::Click(Button(franchise(), "Command4"));
  EXPECT_EQ(franchise().MainRoster.ListCount(), 6);
  Person::DoubleClickRow(List(franchise(), "MainRoster"), 0);
  ASSERT_TRUE(program().f_player.Visible());
  Person::Click(Button(program().f_player, "Label5"));
  EXPECT_FALSE(program().f_player.Visible());

  // The first week, with the user's own game watched.
  ClickTab(franchise(), "XTab1", 0);
  {
    Person person(game_.front_end());
    for (Timer* period : {&match().Timer1, &match().Timer2, &match().Timer3}) {
      person.When(
          "a period to start", [this] { return MatchIsOn(); },
          [this, period] {
            ClickTab(match(), "XTab1", 1);
            Person::Click(Button(match(), "HighButton1"));
            RunPeriod(*period);
          });
    }
    person.When(
        "the end of the match", [this] { return match().HighButton2.Visible(); },
        [this] { Person::Click(Button(match(), "HighButton2")); });
    Person::Click(Button(franchise(), "HighButton1"));
  }
  EXPECT_EQ(game_.On<QLabel>(franchise(), "NextWeek").text(), "Week 2");
  EXPECT_EQ(franchise().Alerts.ListCount(), 18);
  EXPECT_EQ(List(franchise(), "Alerts").model()->rowCount(), 18);

  // The rest of it at one press, over the end of the season.
  {
    Person person(game_.front_end());
    person.ClickInBox("OK", "20");
    Person::Click(Button(franchise(), "Command2"));
  }
  EXPECT_FALSE(franchise().Visible());
  ASSERT_TRUE(results().Visible());
  EXPECT_EQ(franchise().Season.Caption(), "1");
  ClickTab(results(), "XTab1", 1);
  EXPECT_EQ(List(results(), "List6").model()->rowCount(), 6);
}

TEST_F(SeasonInWindows, ByKeyboardAlone) {
  {
    Person person(game_.front_end());
    person.AnswerBox(Qt::Key_Return);
    ASSERT_TRUE(Person::TabAndPress("HighButton2"));
    ASSERT_TRUE(Person::TabAndPress("HighButton4"));
    person.AnswerBox(Qt::Key_Return);
    ASSERT_TRUE(Person::TabAndPress("HighButton7"));
    ASSERT_TRUE(Person::TabAndPress("HighButton6", Qt::Key_Space));
  }
  ASSERT_TRUE(franchise().Visible());
  Settle();

  // The tabs turn by their arrow keys, the roster is moved by Space and Enter.
  ASSERT_TRUE(Person::TabTo("qt_tabwidget_tabbar"));
  for (int i = 0; i < 3; ++i) Person::Press(Qt::Key_Right);
  EXPECT_EQ(franchise().XTab1.FrontTab(), "Roster");
  ASSERT_TRUE(Person::TabTo("MainRoster"));
  Person::Press(Qt::Key_Down);
  ASSERT_GE(franchise().MainRoster.ListIndex(), 0);
  Person::Press(Qt::Key_Return);
  ASSERT_TRUE(program().f_player.Visible());
  Settle();
  ASSERT_TRUE(Person::TabAndPress("Label5"));
  EXPECT_FALSE(program().f_player.Visible());
  Settle();
  ASSERT_TRUE(Person::TabAndPress("Command3"));
  EXPECT_EQ(franchise().TrainingRoster.ListCount(), 6);
  ASSERT_TRUE(Person::TabTo("TrainingRoster"));
  Person::Press(Qt::Key_End);
  EXPECT_EQ(franchise().TrainingRoster.ListIndex(), 5);
  ASSERT_TRUE(Person::TabAndPress("Command4"));
  EXPECT_EQ(franchise().MainRoster.ListCount(), 6);

  ASSERT_TRUE(Person::TabTo("qt_tabwidget_tabbar"));
  for (int i = 0; i < 3; ++i) Person::Press(Qt::Key_Left);
  EXPECT_EQ(franchise().XTab1.FrontTab(), "Main");
  ASSERT_TRUE(Person::TabTo("HighButton1"));
  {
    Person person(game_.front_end());
    for (Timer* period : {&match().Timer1, &match().Timer2, &match().Timer3}) {
      person.When(
          "a period to start", [this] { return MatchIsOn(); },
          [this, period] {
            if (match().XTab1.Front() == 0) {
              ASSERT_TRUE(Person::TabTo("qt_tabwidget_tabbar"));
              Person::Press(Qt::Key_Right);
            }
            ASSERT_TRUE(Person::TabAndPress("HighButton1"));
            RunPeriod(*period);
          });
    }
    person.When(
        "the end of the match", [this] { return match().HighButton2.Visible(); },
        [] { ASSERT_TRUE(Person::TabAndPress("HighButton2")); });
    Person::Press(Qt::Key_Return);
  }
  Settle();
  EXPECT_EQ(franchise().NextWeek.Caption(), "Week 2");
  // The button that was pressed has the keyboard again, for the next week.
  EXPECT_EQ(Person::Focus()->objectName(), "HighButton1");

  {
    Person person(game_.front_end());
    person.AnswerBox(Qt::Key_Return, "20");
    ASSERT_TRUE(Person::TabAndPress("Command2"));
  }
  ASSERT_TRUE(results().Visible());
  EXPECT_EQ(franchise().Season.Caption(), "1");
}

TEST_F(SeasonInWindows, ASimRunIsCancelledByItsButton) {
  game_.StartFranchise();
  Person person(game_.front_end());
  person.ClickInBox("OK", "10");
  person.When(
      "a run to cancel",
      [this] {
        return franchise().Command5.Visible() && franchise().NextWeek.Caption() == "Week 3";
      },
      [this] { Person::Click(Button(franchise(), "Command5")); });
  Person::Click(Button(franchise(), "Command2"));
  // The week being played is played to its end, and no other.
  const std::string week = franchise().NextWeek.Caption();
  EXPECT_TRUE(week == "Week 3" || week == "Week 4") << week;
  EXPECT_FALSE(franchise().SimRunning);
  EXPECT_FALSE(Button(franchise(), "Command5").isVisible());
}

TEST_F(SeasonInWindows, TheNewestAlertIsOnTop) {
  game_.StartFranchise();
  franchise().Alerts.AddItem("old");
  franchise().Alerts.AddItem("new", 0);
  EXPECT_EQ(List(franchise(), "Alerts").model()->index(0, 0).data().toString(), "new");
}

}  // namespace
}  // namespace frostmark::test
