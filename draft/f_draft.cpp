#include "draft/f_draft.h"

#include "program/program.h"

namespace frostmark {

FDraft::FDraft(Program& program)
    : Screen(program.screens, "FDraft", "Draft", Border::kNone, OnClose::kTurnsYear),
      program_(program) {
  for (ListPair* list : Pool()) {
    list->shown.OnDoubleClick = [this, list] { PickFromPool(*list); };
  }
  Command1.OnClick = [this] { PressNewSeason(); };
  OnMouseDown = [this] { Ordvik::DragWindow(*this); };
  XTab1.OnMouseDown = [this] { Ordvik::DragWindow(*this); };
}

ListPair* FDraft::Pool(std::string_view position) {
  for (std::size_t i = 0; i < kPositions.size(); ++i) {
    if (kPositions[i] == position) return Pool()[i];
  }
  return nullptr;
}

void FDraft::SetPoolEnabled(bool enabled) {
  for (ListPair* list : Pool()) list->SetEnabled(enabled);
}

}  // namespace frostmark
