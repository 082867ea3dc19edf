#include "match/game.h"

#include "program/program.h"

namespace frostmark {

Game::Game(Program& program)
    : Screen(program.screens, "Game", "Form3", Border::kNone, OnClose::kEndsProgram,
             Called{"Game"}),
      program_(program) {
  HighButton1.OnClick = [this] { PressStart(); };
  HighButton2.OnClick = [this] { PressClose(); };
  Label5.OnClick = [this] { Abandon(); };
  Timer1.OnTick = [this] { TickPeriod1(); };
  Timer2.OnTick = [this] { TickPeriod2(); };
  Timer3.OnTick = [this] { TickPeriod3(); };
  OnMouseDown = [this] { Ordvik::DragWindow(*this); };
  XTab1.OnMouseDown = [this] { Ordvik::DragWindow(*this); };
}

}  // namespace frostmark
