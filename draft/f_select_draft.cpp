#include "draft/f_select_draft.h"

#include "program/program.h"

namespace frostmark {

FSelectDraft::FSelectDraft(Program& program)
    : Screen(program.screens, "FSelectDraft", "Select Player", Border::kNone, OnClose::kNothing),
      program_(program) {
  List1.OnDoubleClick = [this] { ReleaseSelected(); };
  OnMouseDown = [this] { Ordvik::DragWindow(*this); };
  XTab1.OnMouseDown = [this] { Ordvik::DragWindow(*this); };
}

}  // namespace frostmark
