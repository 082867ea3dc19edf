#include <gtest/gtest.h>

#include <QImage>
#include <QtTest>

#include "desktop/widgets/frost_drift.h"
#include "desktop/widgets/title_scene.h"
#include "tests/desktop/person.h"
#include "tests/desktop/still_desktop.h"
#include "tests/desktop/window_game.h"

namespace frostmark::test {
namespace {

constexpr int kPatience = 10000;  // milliseconds

class Title : public testing::Test {
 protected:
  Startup& startup() { return game_.program().startup; }
  TitleScene& Scene() { return game_.On<TitleScene>(startup(), "look_scene"); }
  FrostDrift& Drift() { return *Scene().findChild<FrostDrift*>(); }

  WindowGame game_;
};

TEST_F(Title, FrostDriftsAfterTheFirstFrameAndPastTheButtons) {
  game_.Start();
  Settle();
  EXPECT_FALSE(Drift().Moves()) << "with the first frame";
  EXPECT_TRUE(Drift().Places().empty());
  ASSERT_TRUE(QTest::qWaitFor([this] { return !Drift().Places().empty(); }, kPatience));
  EXPECT_TRUE(Drift().Moves());
  const QPointF before = Drift().Places().front();
  EXPECT_TRUE(
      QTest::qWaitFor([this, before] { return Drift().Places().front() != before; }, kPatience));
  // Slowly: by no more than a few pixels at a time.
  EXPECT_LT((Drift().Places().front() - before).manhattanLength(), 8);
}

TEST_F(Title, FrostStandsStillWhileTheWindowIsNotTheActiveOne) {
  game_.Start();
  ASSERT_TRUE(QTest::qWaitFor([this] { return Drift().Moves(); }, kPatience));
  QWidget other;
  other.show();
  other.activateWindow();
  EXPECT_TRUE(QTest::qWaitFor([this] { return !Drift().Moves(); }, kPatience));
  game_.Window(startup()).activateWindow();
  EXPECT_TRUE(QTest::qWaitFor([this] { return Drift().Moves(); }, kPatience));
  startup().Hide();
  EXPECT_FALSE(Drift().Moves());
}

TEST_F(Title, NothingDriftsWhereNoMotionIsWanted) {
  const StillDesktop still;
  game_.Start();
  QTest::qWait(1000);  // longer than it takes to begin
  EXPECT_FALSE(Drift().Moves());
  EXPECT_TRUE(Drift().Places().empty());
}

TEST_F(Title, ThereIsSomethingToBeSeenAllOverTheIce) {
  game_.Start();
  Settle();
  const QImage picture = Scene().grab().toImage();
  // Right of the menu and below the boards.
  const QRect ice(QPoint(picture.width() * 35 / 100, picture.height() / 2),
                  picture.rect().bottomRight());
  constexpr int kColumns = 4;
  constexpr int kRows = 3;
  for (int row = 0; row < kRows; ++row) {
    for (int column = 0; column < kColumns; ++column) {
      const QRect cell(ice.left() + ice.width() * column / kColumns,
                       ice.top() + ice.height() * row / kRows, ice.width() / kColumns,
                       ice.height() / kRows);
      // Along a line the ice itself has one color.
      int edges = 0;
      for (int y = cell.top(); y < cell.bottom(); ++y) {
        for (int x = cell.left() + 1; x < cell.right(); ++x) {
          edges += std::abs(qGray(picture.pixel(x, y)) - qGray(picture.pixel(x - 1, y))) > 12;
        }
      }
      EXPECT_GT(edges, 20) << "column " << column << ", row " << row;
    }
  }
}

}  // namespace
}  // namespace frostmark::test
