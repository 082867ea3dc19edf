#include <gtest/gtest.h>

#include <QGuiApplication>
#include <QImage>
#include <QScreen>
#include <QtTest>

#include "desktop/compositing.h"
#include "desktop/painting/palette.h"
#include "tests/desktop/person.h"
#include "tests/desktop/window_game.h"

namespace frostmark::test {
namespace {

// Run once offscreen with all the others and once on a real X server.
TEST(RealWindow, StartsAndIsSeen) {
  WindowGame game;
  game.Start();
  ScreenWindow& window = game.Window(game.program().startup);
  ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
  Settle();
  const QImage seen = window.grab().toImage();
  ASSERT_FALSE(seen.isNull());
  // Ice at our feet, whatever the size.
  const QColor ice = seen.pixelColor(seen.width() * 3 / 4, seen.height() * 9 / 10);
  EXPECT_GT(ice.lightness(), 140);
}

TEST(RealWindow, HasRoundCornersWithAndWithoutCompositor) {
  WindowGame game;
  game.Start();
  ScreenWindow& window = game.Window(game.program().startup);
  ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
  EXPECT_EQ(window.testAttribute(Qt::WA_TranslucentBackground), DesktopIsComposited());
  EXPECT_EQ(window.mask().isEmpty(), DesktopIsComposited());
}

}  // namespace
}  // namespace frostmark::test
