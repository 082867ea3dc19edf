#include "program/program.h"
#include "records/lines/play_line.h"

namespace frostmark {
namespace {

// True when the period is over: its timer stands and BUTTON goes on from here.
bool IsOver(const ProgressBar& period, Timer& timer, Button& button) {
  if (period.Value() != period.Max()) return false;
  button.Show();
  timer.Disable();
  return true;
}

// The line is written at every tick on purpose, at the bottom, out of sight under the play-by-play
// that grows from the top.
void CountEarlyStep(Game& game, ProgressBar& period, Play end) {
  game.Events.AddItem(FormatPlayLine({end}));
  period.SetValue(period.Value() + 1);
}

// As texts, like the announcer. PlayGame, which has waited for this, soon writes the result again
// from the numbers.
void ShowOwnResult(Game& game, Franchise& franchise) {
  const std::string& home = game.Goals(1).Caption();
  const std::string& visitor = game.Goals(2).Caption();
  const std::string& user = franchise.TeamName.Caption();
  Label& result = franchise.LooseOrWin;
  if (game.GHome.Caption() == user) {
    result.SetCaption((home > visitor ? "You won " : "You lost ") + home + " - " + visitor);
  }
  if (game.GVisitor.Caption() == user) {
    result.SetCaption((home < visitor ? "You won " : "You lost ") + visitor + " - " + home);
  }
  if (home == visitor) result.SetCaption("You tied at " + visitor);
}

}  // namespace

void Game::PressStart() {
  const int full = Period1.Max();
  HighButton1.Hide();
  if (Period1.Value() == 0) Timer1.Enable();
  if (Period1.Value() == full && Period2.Value() == 0) Timer2.Enable();
  if (Period2.Value() == full) Timer3.Enable();
  // Every period opens with a face-off, whatever state the last one ended in.
  FaceOff();
}

void Game::TickPeriod1() {
  if (IsOver(Period1, Timer1, HighButton1)) return;
  CountEarlyStep(*this, Period1, Play::kFirstPeriod);
  PlayStep();
}

void Game::TickPeriod2() {
  if (IsOver(Period2, Timer2, HighButton1)) return;
  CountEarlyStep(*this, Period2, Play::kSecondPeriod);
  PlayStep();
}

void Game::TickPeriod3() {
  if (IsOver(Period3, Timer3, HighButton2)) return AnnounceResult();
  Period3.SetValue(Period3.Value() + 1);
  PlayStep();
}

// The scores are compared as texts on purpose, so the crowd is told that 9 is more than 10. The
// standings go by the numbers.
void Game::AnnounceResult() {
  const std::string home = Goals(1).Caption();
  const std::string visitor = Goals(2).Caption();
  const auto report = [this](const PlayLine& line) { Events.AddItem(FormatPlayLine(line), 0); };
  report({Play::kMatchEnd});
  if (home > visitor) {
    report({Play::kWin, GHome.Caption(), GVisitor.Caption(), home, visitor});
  } else if (visitor > home) {
    report({Play::kWin, GVisitor.Caption(), GHome.Caption(), visitor, home});
  } else {
    report({Play::kTie, GHome.Caption(), GVisitor.Caption(), home});
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
  ShowOwnResult(*this, program_.franchise);
  FranchiseMatch = false;
  program_.franchise.Show();
  Hide();
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
