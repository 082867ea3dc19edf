#include "desktop/bindings.h"

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QProgressBar>
#include <QTabBar>
#include <QTabWidget>
#include <QtTest>
#include <chrono>

#include "desktop/list_view.h"
#include "tests/desktop/person.h"
#include "tests/desktop/window_game.h"

namespace frostmark::test {
namespace {

class Bindings : public testing::Test {
 protected:
  Bindings() {
    // The names that these tests put into lists are not files, and a load of a missing file waits.
    program().f_start_game.File1.OnClick = nullptr;
  }

  void Open(Screen& screen) {
    screen.Show();
    Settle();
  }

  Program& program() { return game_.program(); }

  WindowGame game_;
};

TEST_F(Bindings, CaptionsVisibilityAndEnablingAreShown) {
  Startup& startup = program().startup;
  Open(startup);
  auto& button = game_.On<QAbstractButton>(startup, "HighButton4");
  EXPECT_FALSE(button.isVisible());
  startup.HighButton4.Show();
  startup.HighButton4.Disable();
  startup.HighButton4.SetCaption("Salt & Ice");
  EXPECT_TRUE(button.isVisible());
  EXPECT_FALSE(button.isEnabled());
  EXPECT_EQ(button.text(), "Salt && Ice");
}

TEST_F(Bindings, TypingStopsAtTheLimitAndReachesTheControl) {
  Startup& startup = program().startup;
  startup.Frame1.Show();
  Open(startup);
  auto& city = game_.On<QLineEdit>(startup, "Text1");
  city.selectAll();
  QTest::keyClicks(&city, "Saint Petersburg");
  EXPECT_EQ(startup.Text1.Text(), "Saint Peters");
  startup.Text1.SetText("Oslo");
  EXPECT_EQ(city.text(), "Oslo");
}

TEST_F(Bindings, AComboShowsATextThatIsNoneOfItsItems) {
  TeamCreator& creator = program().team_creator;
  Open(creator);
  auto& combo = game_.On<QComboBox>(creator, "Combo1");
  EXPECT_EQ(combo.currentIndex(), -1);
  EXPECT_EQ(combo.placeholderText(), "Select Rank");
  combo.setFocus();
  QTest::keyClick(&combo, Qt::Key_Down);
  EXPECT_EQ(creator.Combo1.Text(), "Rank F");
  creator.Combo1.SetText("Choose Rank");
  EXPECT_EQ(combo.currentIndex(), -1);
  EXPECT_EQ(combo.placeholderText(), "Choose Rank");
}

TEST_F(Bindings, ListsFollowTheirItemsAndTheirSelection) {
  FStartGame& screen = program().f_start_game;
  Open(screen);
  auto& view = game_.On<ListView>(screen, "File1");
  for (const char* name : {"Bears", "Caps", "Devils"}) screen.File1.AddItem(name);
  EXPECT_EQ(view.model()->rowCount(), 3);
  screen.File1.SetListIndex(1);
  EXPECT_EQ(view.currentIndex().data().toString(), "Caps");
  screen.File1.AddItem("Aces", 0);
  EXPECT_EQ(screen.File1.ListIndex(), 2);
  EXPECT_EQ(view.currentIndex().row(), 2);
  screen.File1.RemoveItem(2);
  EXPECT_EQ(screen.File1.ListIndex(), -1);
  EXPECT_TRUE(view.selectionModel()->selectedRows().isEmpty());
  screen.File1.SetList(0, "Axes");
  EXPECT_EQ(view.model()->index(0, 0).data().toString(), "Axes");
  screen.File1.Clear();
  EXPECT_EQ(view.model()->rowCount(), 0);
}

TEST_F(Bindings, AListHearsOneClickForEveryClickAndThenTheDoubleClick) {
  FStartGame& screen = program().f_start_game;
  Open(screen);
  auto& view = game_.On<ListView>(screen, "File1");
  std::string heard;
  screen.File1.OnClick = [&] { heard += "c" + std::to_string(screen.File1.ListIndex()); };
  screen.File1.OnDoubleClick = [&] { heard += "d" + std::to_string(screen.File1.ListIndex()); };
  for (const char* name : {"Bears", "Caps", "Devils"}) screen.File1.AddItem(name);
  Settle();
  const auto at = [&](int row) { return view.visualRect(view.model()->index(row, 0)).center(); };
  QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, at(1));
  QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, at(1));
  EXPECT_EQ(heard, "c1c1");
  heard.clear();
  QTest::mouseDClick(view.viewport(), Qt::LeftButton, {}, at(2));
  EXPECT_EQ(heard, "c2d2");
  heard.clear();
  view.setFocus();
  QTest::keyClick(&view, Qt::Key_Up);
  QTest::keyClick(&view, Qt::Key_Home);
  QTest::keyClick(&view, Qt::Key_Space);
  QTest::keyClick(&view, Qt::Key_Return);
  EXPECT_EQ(heard, "c1c0c0c0d0");
}

TEST_F(Bindings, AHandlerMayEmptyTheListThatItWasCalledFrom) {
  FStartGame& screen = program().f_start_game;
  Open(screen);
  auto& view = game_.On<ListView>(screen, "File1");
  screen.File1.OnDoubleClick = [&] {
    screen.File1.Clear();
    QApplication::processEvents();
    screen.File1.AddItem("Another");
  };
  screen.File1.AddItem("One");
  Settle();
  const QPoint at = view.visualRect(view.model()->index(0, 0)).center();
  QTest::mouseDClick(view.viewport(), Qt::LeftButton, {}, at);
  EXPECT_EQ(view.model()->rowCount(), 1);
  EXPECT_EQ(view.model()->index(0, 0).data().toString(), "Another");
}

TEST_F(Bindings, AFullListIsNotABurden) {
  FStartGame& screen = program().f_start_game;
  Open(screen);
  const auto start = std::chrono::steady_clock::now();
  for (int i = 0; i < RecordList::kMostItems; ++i) screen.File1.AddItem("A team of no importance");
  Settle();
  screen.File1.Select(RecordList::kMostItems - 1);
  Settle();
  EXPECT_EQ(game_.On<ListView>(screen, "File1").currentIndex().row(), RecordList::kMostItems - 1);
  EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(5));
}

TEST_F(Bindings, BytesThatAreNotTextAreShownAndCanBeChosen) {
  FStartGame& screen = program().f_start_game;
  Open(screen);
  screen.File1.AddItem("\xff\xfe bad \x80");
  Settle();
  auto& view = game_.On<ListView>(screen, "File1");
  EXPECT_TRUE(view.model()->index(0, 0).data().toString().contains("bad"));
  Person::ClickRow(view, 0);
  EXPECT_EQ(screen.File1.ListIndex(), 0);
  EXPECT_EQ(screen.File1.List(0), "\xff\xfe bad \x80");
}

TEST_F(Bindings, TabsTurnBothWaysAndBarsFill) {
  Game& match = program().game;
  Open(match);
  auto& tabs = game_.On<QTabWidget>(match, "XTab1");
  EXPECT_EQ(tabs.tabText(1), "Game");
  QTest::mouseClick(tabs.tabBar(), Qt::LeftButton, {}, tabs.tabBar()->tabRect(1).center());
  EXPECT_EQ(match.XTab1.Front(), 1);
  match.XTab1.SetFront(0);
  EXPECT_EQ(tabs.currentIndex(), 0);
  match.Period2.SetValue(50);
  EXPECT_EQ(game_.On<QProgressBar>(match, "Period2").value(), 50);
  EXPECT_EQ(game_.On<QProgressBar>(match, "Period2").maximum(), 200);
}

TEST_F(Bindings, ATextBoxThatAsksForTheFocusGetsIt) {
  TeamCreator& creator = program().team_creator;
  Open(creator);
  game_.On<QWidget>(creator, "Text2").setFocus();
  creator.Text1.SetFocus();
  EXPECT_EQ(game_.Window(creator).focusWidget(), &game_.On<QWidget>(creator, "Text1"));
}

}  // namespace
}  // namespace frostmark::test
