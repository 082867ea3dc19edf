#include <gtest/gtest.h>

#include <QApplication>
#include <QWindow>
#include <QtTest>
#include <algorithm>

#include "tests/windows/sitting.h"

namespace frostmark::test {
namespace {

// "Min", and back by the task bar.
void MinimizeAndRestore(Sitting& sitting) {
  const Franchise& franchise = sitting.program().franchise;
  const XWindow window = sitting.Window(franchise);
  sitting.Click(franchise, "Command6");
  sitting.Until("the franchise minimized", [&] { return sitting.Window(franchise).iconic; });
  // Nobody brings it back before the program has heard of that too.
  sitting.UntilGame("the franchise out of sight",
                    [&] { return !sitting.game().Window(franchise).windowHandle()->isExposed(); });
  sitting.x().Activate(window.id);
  sitting.UntilInFront(franchise);
}

TEST(WindowContract, AScreenThatWasMinimizedComesBackInFront) {
  Sit([](Sitting& sitting) {
    const Franchise& franchise = sitting.program().franchise;
    const Startup& startup = sitting.program().startup;
    sitting.StartFranchise();
    MinimizeAndRestore(sitting);
    sitting.Click(franchise, "HighButton2");
    sitting.UntilInFront(startup);
    sitting.Click(startup, "HighButton2");
    sitting.Click(startup, "HighButton5");
    sitting.UntilInFront(franchise);
  });
}

TEST(WindowContract, TheDeskOfANewSeasonIsSeenThoughItWasMinimizedInTheLast) {
  Sit([](Sitting& sitting) {
    Program& program = sitting.program();
    sitting.StartFranchise();
    MinimizeAndRestore(sitting);
    sitting.PlayToResults();
    sitting.PlayDraft();
    sitting.Click(program.f_draft, "Command1");
    // The box that the season is saved lies on the desk, and both are seen.
    sitting.Until("the box over the desk", [&] {
      const XWindow desk = sitting.Window(program.franchise);
      const auto windows = sitting.x().Windows();
      const XWindow top = windows.empty() ? XWindow{} : windows.back();
      return desk.mapped && !desk.iconic && top.mapped && top.transient_for == desk.id &&
             desk.place.contains(top.place.center());
    });
    sitting.AnswerBox("Return");
    sitting.UntilInFront(program.franchise);
    MinimizeAndRestore(sitting);
  });
}

// Closes the desk by the window manager, in the middle of a procedure of the game.
class CloseInBetween : public QObject {
 public:
  explicit CloseInBetween(Sitting& sitting) : sitting_(sitting) {
    moveToThread(qApp->thread());  // whose windows it watches
  }

  void Do() {
    ScreenWindow& desk = sitting_.game().Window(sitting_.program().franchise);
    desk.installEventFilter(this);
    const auto id = static_cast<std::uint32_t>(desk.internalWinId());
    const auto is_there = [&] { return x_.Window(id).mapped; };
    if (!QTest::qWaitFor(is_there)) return;
    x_.Close(id);
    came_ = QTest::qWaitFor([this] { return asked_; });
    desk.removeEventFilter(this);
  }
  bool Came() const { return came_; }

  bool eventFilter(QObject* /*watched*/, QEvent* event) override {
    asked_ |= event->type() == QEvent::Close;
    return false;
  }

 private:
  Sitting& sitting_;
  XDisplay x_;
  bool asked_ = false;
  bool came_ = false;
};

TEST(WindowContract, TheDeskDoesNotCloseBeforeTheNewSeasonIsSaved) {
  Sit([](Sitting& sitting) {
    Program& program = sitting.program();
    QuickFrontEnd& front_end = sitting.game().front_end();
    sitting.StartFranchise();
    sitting.Ask([&] {
      program.franchise.Hide();
      program.f_draft.Show();
      program.f_draft.Command1.Enable();
    });
    CloseInBetween closing(sitting);
    bool closed = false;
    sitting.Ask([&] {
      front_end.at_yield = [&] {
        if (closed || !program.franchise.Visible() || program.f_draft.Visible()) return;
        closed = true;
        closing.Do();
      };
    });
    sitting.StartSeason();
    sitting.Ask([&] { front_end.at_yield = nullptr; });
    EXPECT_TRUE(closing.Came());
    EXPECT_EQ(sitting.Ask([&] { return front_end.ExitCode(); }), -1);
    sitting.x().Close(sitting.Window(program.franchise).id);
    sitting.UntilGame("the end", [&] { return front_end.ExitCode() == 0; });
  });
}

TEST(WindowContract, CtrlQLeavesTheProgramInTheTurnOfTheYear) {
  for (const bool draft : {false, true}) {
    Sit([draft](Sitting& sitting) {
      Program& program = sitting.program();
      Screen& screen = draft ? static_cast<Screen&>(program.f_draft) : program.f_results;
      sitting.Ask([&] {
        program.startup.Hide();
        screen.Show();
      });
      sitting.UntilInFront(screen);
      sitting.x().Key("ctrl+q");
      sitting.UntilGame("the end", [&] { return sitting.game().front_end().ExitCode() == 0; });
    });
  }
}

TEST(WindowContract, CtrlQLeavesTheProgramFromAnyWindow) {
  Sit([](Sitting& sitting) {
    const TeamCreator& creator = sitting.program().team_creator;
    sitting.Click(sitting.program().startup, "Label2");
    sitting.UntilInFront(creator);
    sitting.x().Key("ctrl+q");
    sitting.UntilGame("the end", [&] { return sitting.game().front_end().ExitCode() == 0; });
  });
}

TEST(WindowContract, TheMarkInTheCornerLeavesALockedDesk) {
  Sit([](Sitting& sitting) {
    Program& program = sitting.program();
    sitting.StartFranchise();
    sitting.Click(program.franchise, "HighButton1");
    sitting.UntilInFront(program.game);
    sitting.Ask([&] { program.game.XTab1.SetFront(1); });
    sitting.Click(program.game, "Label5");
    sitting.Click(program.startup, "HighButton2");
    sitting.Click(program.startup, "HighButton5");
    sitting.UntilInFront(program.franchise);
    // The week of the game that was left goes on waiting.
    EXPECT_FALSE(sitting.Ask([&] { return program.franchise.HighButton2.Enabled(); }));
    sitting.Click(program.franchise, "look_leave");
    sitting.UntilGame("the end", [&] { return sitting.game().front_end().ExitCode() == 0; });
  });
}

// Whether both have one size, and one center within a pixel.
void ExpectSamePlace(const XWindow& one, const XWindow& other) {
  EXPECT_EQ(one.place.size(), other.place.size());
  EXPECT_LE((one.place.center() - other.place.center()).manhattanLength(), 1);
}

TEST(WindowContract, AYearIsPlayedOnOneStage) {
  Sit([](Sitting& sitting) {
    Program& program = sitting.program();
    const XWindow stage = sitting.Window(program.startup);
    sitting.StartFranchise();
    ExpectSamePlace(stage, sitting.Window(program.franchise));
    // A popup lies beside the desk and does not take the stage with it.
    sitting.Ask([&] { program.franchise.XTab1.SetFront(3); });
    sitting.DoubleClickRow(program.franchise, "MainRoster", 2);
    sitting.UntilInFront(program.f_player);
    const XWindow popup = sitting.Window(program.f_player);
    EXPECT_EQ(popup.transient_for, sitting.Window(program.franchise).id);
    EXPECT_FALSE(popup.place.intersects(stage.place));
    sitting.Click(program.f_player, "Label5");
    sitting.UntilInFront(program.franchise);
    sitting.Ask([&] { program.franchise.XTab1.SetFront(0); });

    sitting.PlayToResults();
    ExpectSamePlace(stage, sitting.Window(program.f_results));
    // The year is not saved yet: its window stays.
    sitting.x().Close(sitting.Window(program.f_results).id);
    sitting.PlayDraft([&] {
      ExpectSamePlace(stage, sitting.Window(program.f_draft));
      sitting.x().Close(sitting.Window(program.f_draft).id);
      // A click on the draft does not bury the choice.
      sitting.UntilInFront(program.f_select_draft);
      const XWindow choice = sitting.Window(program.f_select_draft);
      sitting.x().Click(sitting.Place(program.f_draft, "XTab1").topLeft() + QPoint(300, 12));
      sitting.UntilInFront(program.f_draft);
      EXPECT_EQ(choice.transient_for, sitting.Window(program.f_draft).id);
      EXPECT_EQ(sitting.x().Windows().back().id, choice.id);
      sitting.x().Activate(choice.id);
    });
    sitting.StartSeason();
    EXPECT_EQ(sitting.Ask([&] { return sitting.game().front_end().ExitCode(); }), -1);
    ExpectSamePlace(stage, sitting.Window(program.franchise));
  });
}

TEST(WindowContract, AStageThatIsDraggedStaysThere) {
  Sit([](Sitting& sitting) {
    Program& program = sitting.program();
    const XWindow before = sitting.Window(program.startup);
    const QPoint ground = before.place.bottomLeft() + QPoint(before.place.width() / 2, -20);
    sitting.x().MoveMouse(ground);
    sitting.x().Press();
    // The manager takes over in the middle of the way, from where the mouse is then.
    int step = 0;
    sitting.Until("the window after the mouse", [&] {
      step = std::min(step + 10, 90);
      sitting.x().MoveMouse(ground - QPoint(step + step % 20 / 10, step));
      const QPoint way = sitting.Window(program.startup).place.topLeft() - before.place.topLeft();
      return way.manhattanLength() > 60;
    });
    sitting.x().Release();
    sitting.Click(program.startup, "HighButton1");
    sitting.UntilInFront(program.f_start_game);
    sitting.Click(program.f_start_game, "Label2");
    sitting.UntilInFront(program.startup);
    const XWindow after = sitting.Window(program.startup);
    EXPECT_GT((after.place.center() - before.place.center()).manhattanLength(), 60);
    sitting.Click(program.startup, "HighButton1");
    sitting.UntilInFront(program.f_start_game);
    ExpectSamePlace(after, sitting.Window(program.f_start_game));
  });
}

TEST(WindowContract, AfterCloseEnterPressesWhatTheScreenIsAbout) {
  Sit([](Sitting& sitting) {
    Program& program = sitting.program();
    sitting.StartFranchise();
    sitting.Click(program.franchise, "HighButton2");
    sitting.UntilAt(program.startup, "HighButton2");
    sitting.x().Key("Return");
    sitting.Click(program.startup, "HighButton5");  // "Franchise" has brought it out
    sitting.UntilAt(program.franchise, "HighButton1");
  });
}

}  // namespace
}  // namespace frostmark::test
