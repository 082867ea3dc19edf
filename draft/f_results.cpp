#include "draft/f_results.h"

#include "program/program.h"

namespace frostmark {

FResults::FResults(Program& program)
    : Screen(program.screens, "FResults", "Results", Border::kNone, OnClose::kTurnsYear),
      program_(program) {
  Command1.OnClick = [this] { PressDraft(); };
  OnMouseDown = [this] { Ordvik::DragWindow(*this); };
  XTab1.OnMouseDown = [this] { Ordvik::DragWindow(*this); };
}

}  // namespace frostmark
