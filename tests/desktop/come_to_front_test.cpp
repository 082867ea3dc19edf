#include <gtest/gtest.h>

#include <QMessageBox>
#include <QTimer>
#include <QtTest>

#include "tests/desktop/window_game.h"

// What another start of the program in the same folder brings about.
namespace frostmark::test {
namespace {

TEST(ComeToFront, BringsTheScreenInFrontOfAnotherWindow) {
  WindowGame game;
  game.Start();
  QWidget other;
  other.show();
  other.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&other));
  game.front_end().ComeToFront();
  EXPECT_TRUE(QTest::qWaitForWindowActive(&game.Window(game.program().startup)));
}

TEST(ComeToFront, BringsUpAMinimizedScreen) {
  WindowGame game;
  game.Start();
  ScreenWindow& window = game.Window(game.program().startup);
  window.showMinimized();
  ASSERT_TRUE(QTest::qWaitFor([&] { return game.program().startup.Minimized(); }));
  game.front_end().ComeToFront();
  EXPECT_TRUE(QTest::qWaitFor([&] { return !game.program().startup.Minimized(); }));
  EXPECT_FALSE(window.isMinimized());
}

TEST(ComeToFront, BringsUpTheBoxThatIsOpen) {
  WindowGame game;
  game.StartFranchise();
  QWidget other;
  bool active = false;
  QTimer look;
  QObject::connect(&look, &QTimer::timeout, [&] {
    QWidget* const box = QApplication::activeModalWidget();
    if (box == nullptr || active) return;
    other.show();
    other.activateWindow();
    game.front_end().ComeToFront();
    active = QTest::qWaitForWindowActive(box);
    box->close();
  });
  look.start(0);
  game.program().franchise.SaveGame();
  EXPECT_TRUE(active);
}

}  // namespace
}  // namespace frostmark::test
