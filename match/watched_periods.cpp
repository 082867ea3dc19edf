#include "match/game.h"
#include "program/program.h"

namespace frostmark {

Game::Game(Program& program)
    : Screen(program.screens, "Game", "Form3", Border::kNone, OnClose::kEndsProgram,
             Called{"Game"}),
      program_(program) {}

void Game::ConnectPeriods() {
  HighButton1.OnClick = [this] { PressStart(); };
  HighButton2.OnClick = [this] { PressClose(); };
  Label5.OnClick = [this] { Abandon(); };
  Timer1.OnTick = [this] { TickPeriod1(); };
  Timer2.OnTick = [this] { TickPeriod2(); };
  Timer3.OnTick = [this] { TickPeriod3(); };
  OnMouseDown = [this] { Ordvik::DragWindow(*this); };
  XTab1.OnMouseDown = [this] { Ordvik::DragWindow(*this); };
}

void Game::PressStart() {
  const int full = Period1.Max();
  HighButton1.Hide();
  if (Period1.Value() == 0) Timer1.Enable();
  if (Period1.Value() == full && Period2.Value() == 0) Timer2.Enable();
  if (Period2.Value() == full) Timer3.Enable();
  // Every period opens with a face-off, whatever state the last one ended in.
  FaceOff();
}

void Game::TickPeriod1() { TickEarlyPeriod(Period1, Timer1, Play::kFirstPeriod); }

void Game::TickPeriod2() { TickEarlyPeriod(Period2, Timer2, Play::kSecondPeriod); }

// The line is written at every tick on purpose, at the bottom, out of sight under the play-by-play
// that grows from the top.
void Game::TickEarlyPeriod(ProgressBar& period, Timer& timer, Play end) {
  if (period.Value() == period.Max()) {
    HighButton1.Show();
    timer.Disable();
    return;
  }
  Events.AddItem(FormatPlayLine({end}));
  period.SetValue(period.Value() + 1);
  PlayStep();
}

void Game::TickPeriod3() {
  if (Period3.Value() == Period3.Max()) {
    HighButton2.Show();
    Timer3.Disable();
    AnnounceResult();
    return;
  }
  Period3.SetValue(Period3.Value() + 1);
  PlayStep();
}

// The scores are compared as texts on purpose, so the crowd is told that 9 is more than 10. The
// standings go by the numbers.
void Game::AnnounceResult() {
  const std::string home = Goals(1).Caption();
  const std::string visitor = Goals(2).Caption();
  Report({Play::kMatchEnd});
  if (home > visitor) {
    Report({Play::kWin, GHome.Caption(), GVisitor.Caption(), home, visitor});
  } else if (visitor > home) {
    Report({Play::kWin, GVisitor.Caption(), GHome.Caption(), visitor, home});
  } else {
    Report({Play::kTie, GHome.Caption(), GVisitor.Caption(), home});
  }
}

void Game::PressClose() {
  if (!FranchiseMatch) {
    program_.startup.Show();
    Hide();
    return;
  }
  program_.franchise.Score1 = StrictInt16(Goals(1).Caption());
  program_.franchise.Score2 = StrictInt16(Goals(2).Caption());
  ShowOwnResult();
  FranchiseMatch = false;
  program_.franchise.Show();
  Hide();
}

// As texts again. PlayGame, which has waited for this, soon writes the result anew from the
// numbers.
void Game::ShowOwnResult() {
  const std::string& home = Goals(1).Caption();
  const std::string& visitor = Goals(2).Caption();
  const std::string& user = program_.franchise.TeamName.Caption();
  Label& result = program_.franchise.LooseOrWin;
  if (GHome.Caption() == user) {
    result.SetCaption((home > visitor ? "You won " : "You lost ") + home + " - " + visitor);
  }
  if (GVisitor.Caption() == user) {
    result.SetCaption((home < visitor ? "You won " : "You lost ") + visitor + " - " + home);
  }
  if (home == visitor) result.SetCaption("You tied at " + visitor);
}

// Leaves FranchiseMatch as it is: a franchise game goes on waiting under the start screen until
// another game is set up.
void Game::Abandon() {
  Timer1.Disable();
  Timer2.Disable();
  Timer3.Disable();
  for (Label* label : {&GVisitor, &GHome, &Goals(1), &Goals(2)}) label->SetCaption("");
  for (ListBox* list : {&LineList, &DefList, &Events, &Line1, &Line2, &Line1Stats, &Line2Stats}) {
    list->Clear();
  }
  HighButton1.Show();
  HighButton2.Hide();
  program_.startup.Show();
  Hide();
}

}  // namespace frostmark
