#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QFile>
#include <QLabel>
#include <QTabBar>
#include <QtTest>

#include "desktop/list_view.h"
#include "desktop/painting/palette.h"
#include "desktop/widgets/empty_note.h"
#include "desktop/widgets/marked_tabs.h"
#include "desktop/widgets/progress_marks.h"
#include "tests/desktop/person.h"
#include "tests/desktop/window_game.h"

namespace frostmark::test {
namespace {

// What the screens tell a player to do next.
class WhatNow : public testing::Test {
 protected:
  Program& program() { return game_.program(); }
  Startup& startup() { return program().startup; }
  Franchise& franchise() { return program().franchise; }

  template <class Widget>
  Widget& On(const Screen& screen, const char* name) {
    return game_.On<Widget>(screen, name);
  }
  QString Role(const char* button) {
    return On<QAbstractButton>(startup(), button).property("role").toString();
  }
  void PlayWeek() {
    franchise().SimRunning = true;
    game_.front_end().guard().Call([this] { franchise().PressBegin(); });
    Settle();
  }
  EmptyNote* NoteOver(const ListView& list) {
    for (auto* note : list.parentWidget()->findChildren<EmptyNote*>()) {
      if (note->geometry().intersects(list.geometry())) return note;
    }
    return nullptr;
  }

  WindowGame game_;
};

TEST_F(WhatNow, GenerateIsTheRedButtonUntilATeamIsRolled) {
  game_.Start();
  EXPECT_EQ(Role("HighButton2"), "bigprimary");
  startup().Frame1.Show();
  Settle();
  EXPECT_EQ(Role("HighButton2"), "big");
  EXPECT_EQ(Role("HighButton7"), "bigprimary");
  EXPECT_EQ(Role("HighButton6"), "big");
  startup().HighButton7.Click();
  Settle();
  EXPECT_EQ(Role("HighButton7"), "big");
  EXPECT_EQ(Role("HighButton6"), "bigprimary");
}

TEST_F(WhatNow, LoadIsDimmedWhileThereIsNothingToLoad) {
  game_.Start();
  auto& load = On<QAbstractButton>(startup(), "HighButton5");
  startup().HighButton2.Click();
  Settle();
  EXPECT_TRUE(load.property("dimmed").toBool());
  EXPECT_TRUE(load.isEnabled());
  EXPECT_TRUE(load.accessibleDescription().contains("There is none yet"));
  startup().HighButton2.Click();
  Settle();
  game_.StartFranchise();
  franchise().HighButton2.Click();
  startup().HighButton2.Click();
  Settle();
  EXPECT_FALSE(load.property("dimmed").toBool());
  EXPECT_FALSE(load.accessibleDescription().contains("There is none yet"));
}

TEST_F(WhatNow, NoFileIsLookedAtBeforeTheUserActs) {
  game_.Start();
  Settle();
  EXPECT_EQ(program().ordvik.counts().file_reads, 0);
}

TEST_F(WhatNow, WeeksThatAreNotSavedLeaveADotOnSave) {
  game_.StartFranchise();
  Settle();
  auto& save = On<QAbstractButton>(franchise(), "HighButton3");
  auto& dot = On<QWidget>(franchise(), "look_unsaved");
  EXPECT_FALSE(dot.isVisible());
  PlayWeek();
  EXPECT_TRUE(dot.isVisible());
  EXPECT_TRUE(save.rect().contains(dot.geometry()));
  EXPECT_TRUE(save.accessibleDescription().contains("not saved"));
  {
    Person person(game_.front_end());
    person.AnswerBox(Qt::Key_Return);
    Person::Click(save);
  }
  Settle();
  EXPECT_FALSE(dot.isVisible());
  EXPECT_FALSE(save.accessibleDescription().contains("not saved"));
}

TEST_F(WhatNow, AfterTheLastWeekThereIsNoOpponent) {
  game_.StartFranchise();
  Settle();
  auto& over = On<QWidget>(franchise(), "look_season_over");
  EXPECT_FALSE(over.isVisible());
  franchise().OppTeam.SetCaption("Denver Blizzard");
  franchise().Command1.Click();  // on to the off-season
  Settle();
  EXPECT_TRUE(over.isVisible());
  EXPECT_TRUE(over.accessibleName().contains("season is over"));
  for (const char* name : {"Label4", "OppTeam", "OppOverall", "OppOffense", "OppDefense"}) {
    const auto& label = On<QLabel>(franchise(), name);
    const QRect text(label.mapTo(over.parentWidget(), QPoint()), label.size());
    EXPECT_TRUE(over.geometry().contains(text) || text.left() < over.x()) << name;
  }
  // The team's name ends where all do.
  const auto& name = On<QLabel>(franchise(), "OppTeam");
  EXPECT_GE(name.mapTo(over.parentWidget(), QPoint(name.width() - name.sizeHint().width(), 0)).x(),
            over.x());
  EXPECT_FALSE(On<QWidget>(franchise(), "look_versus").isVisible());
  franchise().NextWeek.SetCaption("Week 1");
  Settle();
  EXPECT_FALSE(over.isVisible());
  EXPECT_TRUE(On<QWidget>(franchise(), "look_versus").isVisible());
}

TEST_F(WhatNow, TheSeasonEndsWithACup) {
  game_.StartFranchise();
  Settle();
  auto& weeks = On<ProgressMarks>(franchise(), "NextWeek");
  const auto gold = [&weeks] {
    const QImage picture = weeks.grab().toImage();
    int count = 0;
    for (int y = 0; y < picture.height(); ++y) {
      for (int x = 0; x < picture.width(); ++x) {
        if (picture.pixel(x, y) == palette::kGold) ++count;
      }
    }
    return count;
  };
  EXPECT_GT(gold(), 0) << "to be won";
  franchise().Command1.Click();
  Settle();
  EXPECT_EQ(gold(), 0) << "here it is";
}

TEST_F(WhatNow, TheOwnLeagueIsMarkedInTheStandings) {
  game_.StartFranchise();
  Settle();
  auto& leagues = On<MarkedTabs>(franchise(), "XTab2");
  EXPECT_EQ(leagues.Marked(), 0);
  franchise().MyRank.SetCaption("Rank C");
  Settle();
  EXPECT_EQ(leagues.Marked(), 3);
  EXPECT_EQ(leagues.tabBar()->tabToolTip(3), "The league of your team. Rank C (Ctrl+4)");
  EXPECT_EQ(leagues.tabBar()->tabToolTip(0), "Rank F (Ctrl+1)");
  EXPECT_EQ(leagues.currentIndex(), 0) << "no page is turned";
}

TEST_F(WhatNow, TheGameCallsUntilItHasBegun) {
  Game& match = program().game;
  match.Show();
  Settle();
  auto& pages = On<MarkedTabs>(match, "XTab1");
  EXPECT_EQ(pages.Marked(), 1);
  match.XTab1.SetFront(1);
  Settle();
  EXPECT_EQ(pages.Marked(), -1);
  match.XTab1.SetFront(0);
  Settle();
  EXPECT_EQ(pages.Marked(), 1);
  match.Period1.SetValue(5);
  Settle();
  EXPECT_EQ(pages.Marked(), -1);
}

TEST_F(WhatNow, AMarkedTabIsGoldWhereverItStands) {
  MarkedTabs tabs;
  tabs.addTab(new QWidget, "Rosters");
  tabs.addTab(new QWidget, "Game");
  tabs.show();
  const auto gold = [&tabs](int tab) {
    const QImage picture = tabs.tabBar()->grab(tabs.tabBar()->tabRect(tab)).toImage();
    for (int y = 0; y < picture.height(); ++y) {
      for (int x = 0; x < picture.width(); ++x) {
        const QColor color = picture.pixelColor(x, y);
        if (color.red() > 200 && color.green() > 150 && color.blue() < 120) return true;
      }
    }
    return false;
  };
  for (const int marked : {0, 1}) {
    tabs.Mark(marked, MarkedTabs::Manner::kStill, "Here");
    Settle();
    EXPECT_TRUE(gold(marked));
    EXPECT_FALSE(gold(1 - marked));
  }
}

TEST_F(WhatNow, AnEmptyListSaysWhy) {
  game_.StartFranchise();
  franchise().XTab1.SetFront(1);
  Settle();
  EmptyNote* note = NoteOver(On<ListView>(franchise(), "Alerts"));
  ASSERT_NE(note, nullptr);
  EXPECT_TRUE(note->isVisible());
  EXPECT_TRUE(note->text().startsWith("No games yet"));
  franchise().Alerts.AddItem("A B beat C D 2 to 1");
  EXPECT_FALSE(note->isVisible());
  EXPECT_EQ(franchise().Alerts.ListCount(), 1) << "the note is not an item";
}

TEST_F(WhatNow, AListThatIsRebuiltIsNotEmpty) {
  game_.StartFranchise();
  franchise().XTab1.SetFront(3);
  Settle();
  EmptyNote* note = NoteOver(On<ListView>(franchise(), "MainRoster"));
  ASSERT_NE(note, nullptr);
  franchise().MainRoster.Clear();
  Settle();
  EXPECT_FALSE(note->isVisible());
  EXPECT_TRUE(QTest::qWaitFor([note] { return note->isVisible(); }));
}

}  // namespace
}  // namespace frostmark::test
