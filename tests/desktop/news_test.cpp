#include <gtest/gtest.h>

#include <QAccessible>
#include <QScrollBar>

#include "desktop/delegates/news_delegate.h"
#include "desktop/list_view.h"
#include "desktop/painting/news_painter.h"
#include "desktop/painting/palette.h"
#include "desktop/widgets/own_game.h"
#include "tests/desktop/person.h"
#include "tests/desktop/window_game.h"

namespace frostmark::test {
namespace {

// The news of a franchise's first week.
class News : public testing::Test {
 protected:
  News() {
    game_.StartFranchise();
    franchise().SimRunning = true;
    game_.front_end().guard().Call([this] { franchise().PressBegin(); });
    franchise().XTab1.SetFront(1);
    Settle();
  }

  Franchise& franchise() { return game_.program().franchise; }
  ListView& list() { return game_.On<ListView>(franchise(), "Alerts"); }
  OwnGame& own_game() { return game_.On<OwnGame>(franchise(), "look_own_game"); }
  QStringList Heads() {
    QStringList heads;
    const auto& delegate = *qobject_cast<NewsDelegate*>(list().itemDelegate());
    for (int row = 0; row < franchise().Alerts.ListCount(); ++row) {
      const QString head = delegate.HeadOf(list().model()->index(row, 0));
      if (!head.isEmpty()) heads += head;
    }
    return heads;
  }

  WindowGame game_;
};

TEST_F(News, AWeekIsSeenWithoutScrolling) {
  ASSERT_EQ(franchise().Alerts.ListCount(), 18);
  EXPECT_EQ(list().verticalScrollBar()->maximum(), 0);
  const QRect last = list().visualRect(list().model()->index(17, 0));
  EXPECT_TRUE(list().viewport()->rect().contains(last));
}

TEST_F(News, EachLeagueHasItsHead) {
  EXPECT_EQ(Heads(), QStringList({"Rank A", "Rank B", "Rank C", "Rank D", "Rank E", "Rank F"}));
}

TEST_F(News, AGameOfTeamsThatHaveParted) {
  franchise().Alerts.AddItem("Nowhere Nobodies beat Elsewhere Others 3 to 1", 0);
  Settle();
  EXPECT_EQ(Heads().front(), "Earlier seasons");
  EXPECT_EQ(Heads().size(), 7);
}

TEST_F(News, TheOwnGameStandsOverThemAll) {
  const QString own = QString::fromStdString(franchise().TeamName.Caption());
  EXPECT_TRUE(own_game().isVisible());
  EXPECT_TRUE(own_game().Line().contains(own));
  EXPECT_TRUE(own_game().accessibleName().contains(own_game().Line()));
  EXPECT_LE(own_game().mapTo(list().window(), QPoint(0, own_game().height())).y(),
            list().mapTo(list().window(), QPoint()).y());
  // It is the newest.
  franchise().Alerts.AddItem(own.toStdString() + " beat Miami Heat 9 to 1", 0);
  Settle();
  EXPECT_EQ(own_game().Line(), own + " beat Miami Heat 9 to 1");
}

TEST_F(News, WithoutAnOwnGameThereIsNone) {
  franchise().Alerts.Clear();
  Settle();
  EXPECT_FALSE(own_game().isVisible());
}

// Rows are drawn apart but told, row by row, as they stand in the list.
// Whoever has opened the news once sees the newest of the next week too.
TEST_F(News, TheNewestIsOnTop) {
  list().setFocus();
  Settle();
  franchise().XTab1.SetFront(0);
  Settle();
  for (int week = 2; week < 4; ++week) {
    game_.front_end().guard().Call([this] { franchise().PressBegin(); });
  }
  franchise().XTab1.SetFront(1);
  Settle();
  EXPECT_EQ(list().verticalScrollBar()->value(), 0);
  // Unless they are reading further down.
  list().verticalScrollBar()->setValue(40);
  franchise().Alerts.AddItem("Nowhere Nobodies beat Elsewhere Others 3 to 1", 0);
  Settle();
  EXPECT_GT(list().verticalScrollBar()->value(), 0);
}

TEST_F(News, TheRowsAreThoseOfTheList) {
  QAccessibleInterface* rows = QAccessible::queryAccessibleInterface(&list());
  ASSERT_EQ(rows->childCount(), franchise().Alerts.ListCount());
  for (int row = 0; row < rows->childCount(); ++row) {
    EXPECT_EQ(rows->child(row)->text(QAccessible::Name).toStdString(),
              franchise().Alerts.List(row));
  }
}

TEST(NewsLetters, TellTheFortuneOfATeam) {
  const auto letter = [](const char* line, const char* team) {
    const auto fortune = FortuneOf(*ParseNewsLine(line), team);
    return fortune ? LetterOf(*fortune) : QString();
  };
  EXPECT_EQ(letter("A B beat C D 2 to 1", "A B"), "W");
  EXPECT_EQ(letter("A B beat C D 2 to 1", "C D"), "L");
  EXPECT_EQ(letter("A B lost to C D 1 to 2", "C D"), "W");
  EXPECT_EQ(letter("A B tied C D at 2", "C D"), "T");
  EXPECT_EQ(letter("A B tied C D at 2", "E F"), "");
}

}  // namespace
}  // namespace frostmark::test
