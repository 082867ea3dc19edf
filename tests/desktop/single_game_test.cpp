#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QLabel>
#include <QListView>
#include <QMessageBox>
#include <QTabBar>
#include <QTabWidget>
#include <QtTest>

#include "desktop/boxes.h"
#include "desktop/widgets/rink_view.h"
#include "tests/desktop/person.h"
#include "tests/desktop/window_game.h"

namespace frostmark::test {
namespace {

// Somebody who plays one game between two teams of a world that is already there.
class SingleGame : public testing::Test {
 protected:
  SingleGame() {
    game_.front_end().guard().Call([this] {
      QTimer::singleShot(0, [] {
        if (QWidget* box = QApplication::activeModalWidget()) box->close();
      });
      program().startup.BuildLeague();
    });
    game_.Start();
    Settle();
  }

  Program& program() { return game_.program(); }
  FStartGame& choice() { return program().f_start_game; }
  Game& match() { return program().game; }

  // The periods go by themselves in real time; here they run through at once.
  static void RunPeriod(Timer& timer) {
    ASSERT_TRUE(timer.Enabled());
    while (timer.Enabled()) timer.Tick();
    Settle();
  }

  void ExpectTheEnd() {
    EXPECT_EQ(match().Period3.Value(), 200);
    EXPECT_TRUE(game_.On<QWidget>(match(), "HighButton2").isVisible());
    EXPECT_FALSE(game_.On<QWidget>(match(), "HighButton1").isVisible());
    EXPECT_EQ(game_.On<QLabel>(match(), "Label3").text().toStdString(), match().Label3.Caption());
    EXPECT_EQ(match().Events.List(1), "The match has ended in an amazing battle!");
  }

  WindowGame game_;
};

TEST_F(SingleGame, ByMouse) {
  Person::Click(game_.On<QWidget>(program().startup, "HighButton1"));
  ASSERT_TRUE(choice().Visible());
  EXPECT_FALSE(game_.Window(program().startup).isVisible());
  Person::ClickRow(game_.On<QListView>(choice(), "List3"), 0);
  Person::ClickRow(game_.On<QListView>(choice(), "File1"), 1);
  Person::ClickRow(game_.On<QListView>(choice(), "List4"), 5);
  Person::ClickRow(game_.On<QListView>(choice(), "File2"), 2);
  EXPECT_EQ(choice().File2.ListCount(), 6);
  Person::Click(game_.On<QWidget>(choice(), "HighButton1"));
  ASSERT_TRUE(match().Visible());
  EXPECT_EQ(match().Line1.ListCount(), 6);

  auto& tabs = game_.On<QTabWidget>(match(), "XTab1");
  QTest::mouseClick(tabs.tabBar(), Qt::LeftButton, {}, tabs.tabBar()->tabRect(1).center());
  for (Timer* timer : {&match().Timer1, &match().Timer2, &match().Timer3}) {
    Person::Click(game_.On<QWidget>(match(), "HighButton1"));
    RunPeriod(*timer);
  }
  ExpectTheEnd();
  Person::Click(game_.On<QWidget>(match(), "HighButton2"));
  EXPECT_FALSE(match().Visible());
  EXPECT_TRUE(game_.Window(program().startup).isVisible());
}

TEST_F(SingleGame, ByKeyboard) {
  ASSERT_TRUE(Person::TabAndPress("HighButton1"));
  ASSERT_TRUE(choice().Visible());
  for (const char* list : {"List3", "File1", "List4", "File2"}) {
    ASSERT_TRUE(Person::TabTo(list)) << list;
    Person::Press(Qt::Key_Down);
  }
  ASSERT_TRUE(Person::TabAndPress("HighButton1", Qt::Key_Space));
  ASSERT_TRUE(match().Visible());
  Settle();
  match().XTab1.SetFront(0);
  game_.On<QTabWidget>(match(), "XTab1").tabBar()->setFocus();
  Person::Press(Qt::Key_Right);
  ASSERT_EQ(match().XTab1.Front(), 1);
  for (Timer* timer : {&match().Timer1, &match().Timer2, &match().Timer3}) {
    ASSERT_TRUE(Person::TabAndPress("HighButton1"));
    RunPeriod(*timer);
  }
  ExpectTheEnd();
  ASSERT_TRUE(Person::TabAndPress("HighButton2"));
  EXPECT_TRUE(program().startup.Visible());
}

TEST_F(SingleGame, ABeginWithoutTeamsIsRefusedInABox) {
  Person::Click(game_.On<QWidget>(program().startup, "HighButton1"));
  QString text;
  QTimer::singleShot(50, [&] {
    auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    ASSERT_NE(box, nullptr);
    text = box->text();
    const QPixmap sign = box->iconPixmap();
    EXPECT_EQ(sign.toImage(), BoxSign(BoxIcon::kStop, qRound(sign.deviceIndependentSize().width()),
                                      sign.devicePixelRatio())
                                  .toImage());
    EXPECT_NE(sign.toImage(),
              BoxSign(BoxIcon::kInformation, qRound(sign.deviceIndependentSize().width()),
                      sign.devicePixelRatio())
                  .toImage());
    box->accept();
  });
  Person::Click(game_.On<QWidget>(choice(), "HighButton1"));
  EXPECT_EQ(text, "Please select two teams!");
}

TEST_F(SingleGame, GoesAtItsOwnPaceWhenNobodyHurriesIt) {
  Person::Click(game_.On<QWidget>(program().startup, "HighButton1"));
  choice().List3.Select(0);
  choice().File1.Select(0);
  choice().List4.Select(0);
  choice().File2.Select(1);
  Person::Click(game_.On<QWidget>(choice(), "HighButton1"));
  match().XTab1.SetFront(1);
  Person::Click(game_.On<QWidget>(match(), "HighButton1"));
  EXPECT_TRUE(QTest::qWaitFor([this] { return match().Period1.Value() >= 3; }, 5000));
  EXPECT_GT(match().Events.ListCount(), 3);
  match().Timer1.Disable();
}

}  // namespace
}  // namespace frostmark::test
