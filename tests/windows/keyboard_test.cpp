#include <gtest/gtest.h>

#include <QApplication>
#include <string>

#include "tests/windows/sitting.h"

namespace frostmark::test {
namespace {

constexpr const char* kTabs = "qt_tabwidget_tabbar";

// Somebody without a mouse. Wherever a screen comes up, and whenever a procedure of the game, a box
// or a popup is over, the keyboard is where they go on.
class Typist {
 public:
  explicit Typist(Sitting& sitting)
      : sitting_(sitting), program_(sitting.program()), desk_(sitting.program().franchise) {}

  void BeginFranchise() {
    sitting_.UntilAt(program_.startup, "HighButton2");
    Key("Return");
    sitting_.TabTo("HighButton4");
    Key("Return");
    sitting_.AnswerBox("Return");  // a new world takes a while
    sitting_.UntilAt(program_.startup, "HighButton7");
    Key("Return");
    sitting_.TabTo("HighButton6");
    Key("Return");
    sitting_.AnswerBox("Return");  // the file is saved
    sitting_.UntilAt(desk_, "HighButton1");
  }

  void LookAtAPlayer() {
    TurnTo(desk_.XTab1, "Right", 3);
    sitting_.TabTo("MainRoster");
    Key("Down");
    Key("Return");
    sitting_.UntilAt(program_.f_player, "Label5");
    Key("Return");
    // The next player is one row further down.
    sitting_.UntilAt(desk_, "MainRoster");
    TurnTo(desk_.XTab1, "Left", 0);
  }

  void WatchAGame() {
    Game& match = program_.game;
    sitting_.TabTo("HighButton1");
    Key("Return");
    sitting_.UntilAt(match, kTabs);
    TurnTo(match.XTab1, "Right", 1);
    sitting_.TabTo("HighButton1");
    for (Timer* period : {&match.Timer1, &match.Timer2, &match.Timer3}) {
      sitting_.UntilAt(match, "HighButton1");
      Key("Return");
      sitting_.UntilGame("the period", [&] { return period->Enabled(); });
      sitting_.Ask([period] {
        while (period->Enabled()) period->Tick();
      });
    }
    sitting_.UntilAt(match, "HighButton2");
    Key("Return");
    // The buttons come back while the roster is read in for the last time.
    sitting_.UntilGame("the week over", [this] {
      constexpr int kPlayers = 11;
      return desk_.HighButton1.Enabled() &&
             desk_.MainList.ListCount() + desk_.TrainList.ListCount() == kPlayers;
    });
    sitting_.UntilAt(desk_, "HighButton1");
  }

  void Simulate(const std::string& until) {
    const std::string week = "Week " + until;
    sitting_.TabTo("Command2");
    Key("Return");
    sitting_.AnswerBox("Return", until);
    sitting_.UntilGame(week, [&] { return desk_.NextWeek.Caption() == week; });
    sitting_.UntilAt(desk_, "HighButton1");
  }

  void PlayToResults() {
    Simulate("10");
    WatchAGame();
    Key("Return");
    sitting_.UntilAt(program_.f_results, "Command1");
  }

  void Draft() {
    FDraft& draft = program_.f_draft;
    Key("Return");
    const auto waits = [&] { return draft.AwaitingPick || draft.Command1.Enabled(); };
    sitting_.UntilGame("the user's turn", waits);
    if (sitting_.Ask([&] { return program_.f_select_draft.Visible(); })) {
      sitting_.UntilAt(program_.f_select_draft, "List1");
      Key("Down");
      Key("Return");
      sitting_.AnswerBox("alt+y");
    }
    sitting_.UntilAt(draft, OpenList());
    Key("Down");
    Key("Return");
    // Nobody is taken yet, and the list is still there to choose from.
    sitting_.AnswerBox("alt+n");
    sitting_.UntilAt(draft, OpenList());
    Key("Return");
    sitting_.AnswerBox("alt+y");
    sitting_.UntilAt(draft, "Command1");
    Key("Return");
    sitting_.AnswerBox("Return");  // the file is saved
    sitting_.UntilAt(desk_, "HighButton1");
  }

  void SaveCloseAndLoad() {
    sitting_.TabTo("HighButton3");
    Key("Return");
    sitting_.AnswerBox("Return");
    sitting_.UntilAt(desk_, "HighButton3");
    sitting_.TabTo("HighButton2");
    Key("Return");
    sitting_.UntilAt(program_.startup, "HighButton2");
    Key("Return");
    sitting_.TabTo("HighButton5");
    Key("Return");
    sitting_.UntilAt(desk_, "HighButton1");
  }

 private:
  void Key(const std::string& keys) { sitting_.x().Key(keys); }

  void TurnTo(const TabStrip& strip, const std::string& key, int page) {
    sitting_.TabTo(kTabs);
    while (sitting_.Ask([&] { return strip.Front(); }) != page) {
      const int before = sitting_.Ask([&] { return strip.Front(); });
      Key(key);
      sitting_.UntilGame("the page turned", [&] { return strip.Front() != before; });
    }
  }

  // The widget of the one list of the pool that is open to the user.
  std::string OpenList() {
    std::string name;
    sitting_.UntilGame("an open list", [&] {
      for (ListPair* list : program_.f_draft.Pool()) {
        if (list->shown.Enabled()) name = list->shown.Name();
      }
      return !name.empty();
    });
    return name.replace(name.find('('), 3, "_0");
  }

  Sitting& sitting_;
  Program& program_;
  Franchise& desk_;
};

TEST(Keyboard, AYearIsPlayedFromOnePrimaryThingToTheNext) {
  Sit([](Sitting& sitting) {
    Typist typist(sitting);
    typist.BeginFranchise();
    typist.LookAtAPlayer();
    typist.WatchAGame();
    typist.Simulate("4");
    typist.PlayToResults();
    typist.Draft();
    typist.SaveCloseAndLoad();
  });
}

TEST(Keyboard, ASingleGameIsSetUpAndLeft) {
  Sit([](Sitting& sitting) {
    Program& program = sitting.program();
    sitting.UntilAt(program.startup, "HighButton2");
    sitting.TabTo("HighButton1");
    sitting.x().Key("Return");
    sitting.UntilAt(program.f_start_game, "List3");
    sitting.TabTo("Label2");
    sitting.x().Key("Return");
    sitting.UntilAt(program.startup, "HighButton2");
  });
}

// As when a box closes in the moment that its window is given the keyboard.
TEST(Keyboard, AWindowThatHasLostItComesToItsKeysAgain) {
  Sit([](Sitting& sitting) {
    Startup& start = sitting.program().startup;
    sitting.UntilInFront(start);
    sitting.x().PretendLoss(sitting.Window(start).id);
    sitting.UntilGame("the loss", [] { return QApplication::activeWindow() == nullptr; });
    sitting.UntilInFront(start);
    sitting.x().Key("alt+s");
    sitting.UntilInFront(sitting.program().f_start_game);
  });
}

TEST(Keyboard, ARunThatIsCancelledLeavesTheKeyboardAtBegin) {
  Sit([](Sitting& sitting) {
    Franchise& desk = sitting.program().franchise;
    Typist(sitting).BeginFranchise();
    sitting.TabTo("Command2");
    sitting.x().Key("Return");
    sitting.AnswerBox("Return", "9");
    sitting.UntilAt(desk, "Command5");
    sitting.x().Key("Return");
    sitting.UntilGame("the end of the run", [&] { return !desk.SimRunning; });
    sitting.UntilAt(desk, "HighButton1");
    EXPECT_NE(sitting.Ask([&] { return desk.NextWeek.Caption(); }), "Week 9");
  });
}

}  // namespace
}  // namespace frostmark::test
