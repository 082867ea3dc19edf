#include <gtest/gtest.h>

#include <QGuiApplication>
#include <QLayout>
#include <QScreen>
#include <string>

#include "desktop/preferences.h"
#include "desktop/screen_form.h"
#include "desktop/screen_window.h"
#include "desktop/stage.h"
#include "desktop/style.h"
#include "tests/windows/sitting.h"

namespace frostmark::test {
namespace {

// Somebody who likes the windows larger, smaller or over the whole desktop.
class Comfort : public testing::Test {
 protected:
  ~Comfort() override {
    preferences::SetZoom(1);
    preferences::SetFullScreen(false);
    DressApplication();
  }

  // Presses KEYS on the start screen until its window has WIDTH, in the screen's pixels.
  static void PressUntil(Sitting& sitting, const std::string& keys,
                         const std::function<bool(QRect)>& wanted) {
    Startup& start = sitting.program().startup;
    sitting.UntilInFront(start);
    sitting.x().Key(keys);
    sitting.Until(keys, [&] { return wanted(sitting.Window(start).place); });
  }
};

TEST_F(Comfort, SmallerLettersMakeASmallerWindowAroundTheSameMiddle) {
  Sit([](Sitting& sitting) {
    Startup& start = sitting.program().startup;
    sitting.UntilInFront(start);
    const QRect usual = sitting.Window(start).place;
    PressUntil(sitting, "ctrl+minus", [&](QRect now) { return now.width() < usual.width(); });
    const QRect smaller = sitting.Window(start).place;
    EXPECT_NEAR(smaller.width(), usual.width() * 0.9, 2);
    EXPECT_NEAR(smaller.center().x(), usual.center().x(), 1);
    EXPECT_NEAR(smaller.center().y(), usual.center().y(), 1);
    EXPECT_NEAR(sitting.Ask([] { return preferences::Zoom(); }), 0.9, 0.001);
    PressUntil(sitting, "ctrl+0", [&](QRect now) { return now == usual; });
    EXPECT_NEAR(sitting.Ask([] { return preferences::Zoom(); }), 1, 0.001);
  });
}

TEST_F(Comfort, NoZoomMakesAWindowLargerThanTheDesktop) {
  Sit([](Sitting& sitting) {
    Startup& start = sitting.program().startup;
    sitting.UntilInFront(start);
    for (int press = 0; press < 12; ++press) sitting.x().Key("ctrl+plus");
    sitting.UntilGame("the largest letters", [] { return Zoom() > 1.3; });
    const auto room = sitting.Ask([] { return QGuiApplication::primaryScreen()->availableSize(); });
    sitting.Until("a window within the desktop", [&] {
      const QRect now = sitting.Window(start).place;
      return now.width() > room.width() * 0.8 && now.width() <= room.width() &&
             now.height() <= room.height();
    });
  });
}

TEST_F(Comfort, ThereAndBackLeavesEverySpaceAsItWas) {
  Sit([](Sitting& sitting) {
    Startup& start = sitting.program().startup;
    sitting.UntilInFront(start);
    const auto spaces = [&] {
      return sitting.Ask([&] {
        QList<QMargins> all;
        for (const auto* layout : sitting.game().Window(start).form().findChildren<QLayout*>()) {
          all.append(layout->contentsMargins());
        }
        return all;
      });
    };
    const auto before = spaces();
    const QRect usual = sitting.Window(start).place;
    for (const char* keys : {"ctrl+minus", "ctrl+minus", "ctrl+minus", "ctrl+plus"}) {
      sitting.x().Key(keys);
    }
    sitting.UntilGame("smaller letters", [] { return Zoom() < 0.85; });
    PressUntil(sitting, "ctrl+0", [&](QRect now) { return now == usual; });
    EXPECT_EQ(spaces(), before);
  });
}

TEST_F(Comfort, F11FillsTheDesktopAndGivesItBack) {
  Sit([](Sitting& sitting) {
    Startup& start = sitting.program().startup;
    sitting.UntilInFront(start);
    const QRect usual = sitting.Window(start).place;
    const QRect whole(QPoint(), sitting.x().Screen());
    PressUntil(sitting, "F11", [&](QRect now) { return now == whole; });
    EXPECT_TRUE(sitting.Ask([] { return preferences::FullScreen(); }));
    // The next screen does the same.
    sitting.UntilInFront(start);
    sitting.x().Key("alt+s");
    FStartGame& choice = sitting.program().f_start_game;
    sitting.UntilInFront(choice);
    sitting.Until("the choice on the whole desktop",
                  [&] { return sitting.Window(choice).place == whole; });
    sitting.x().Key("Escape");
    PressUntil(sitting, "F11", [&](QRect now) { return now == usual; });
    EXPECT_FALSE(sitting.Ask([] { return preferences::FullScreen(); }));
  });
}

// The desk lies under the rink, with the same size at the same place.
TEST_F(Comfort, AWatchedGameStaysInFrontOfTheDesk) {
  Sit([](Sitting& sitting) {
    sitting.StartFranchise();
    sitting.Click(sitting.program().franchise, "HighButton1");
    Game& game = sitting.program().game;
    sitting.UntilInFront(game);
    const QRect whole(QPoint(), sitting.x().Screen());
    const QRect usual = sitting.Window(game).place;
    const auto press = [&](const char* keys, const std::function<bool(QRect)>& wanted) {
      sitting.x().Key(keys);
      sitting.Until(keys, [&] { return wanted(sitting.Window(game).place); });
      sitting.UntilInFront(game);
    };
    press("ctrl+minus", [&](QRect now) { return now.width() < usual.width(); });
    press("ctrl+0", [&](QRect now) { return now == usual; });
    press("F11", [&](QRect now) { return now == whole; });
    press("F11", [&](QRect now) { return now == usual; });
  });
}

TEST_F(Comfort, NonsenseAmongThePreferencesIsNotTaken) {
  preferences::SetZoom(-3);
  EXPECT_EQ(preferences::Zoom(), 1);
  Stage stage;
  stage.BeginAround({300, 200});
  EXPECT_EQ(stage.MovedTo(), QPoint(300, 200));
  Stage lost;
  lost.BeginAround({100000, 100000});
  EXPECT_EQ(lost.MovedTo(), std::nullopt);
}

}  // namespace
}  // namespace frostmark::test
