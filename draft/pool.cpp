#include "program/program.h"
#include "records/lines/pool_line.h"

namespace frostmark {

FResults::FResults(Program& program)
    : Screen(program.screens, "FResults", "Results", Border::kNone, OnClose::kTurnsYear),
      program_(program) {}

FDraft::FDraft(Program& program)
    : Screen(program.screens, "FDraft", "Draft", Border::kNone, OnClose::kTurnsYear),
      program_(program) {}

void FResults::ConnectDraftButton() {
  Command1.OnClick = [this] { PressDraft(); };
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

void FDraft::ShowPoolLines(ListPair& list) {
  const int count = list.records.ListCount();
  for (int i = 0; i < count; ++i) {
    list.shown.AddItem(FormatPoolLine(list.records.List(i)));
    program_.desktop.Yield();
  }
}

void FDraft::RollProspects(ListPair& list, const char* position) {
  constexpr int kProspectsOfPosition = 20;
  HockeyNaming& naming = program_.hockey_naming;
  list.shown.Clear();
  list.records.Clear();
  for (int i = 0; i < kProspectsOfPosition; ++i) {
    const std::string name = naming.GenPlayerName();
    naming.GenPlayerRatings(position, true);
    list.records.AddItem(naming.GeneratedRecord(name, position, "N"));
    program_.desktop.Yield();
  }
}

// A second press while the pool is rolled runs the whole of this once more inside the first.
void FResults::PressDraft() {
  FDraft& draft = program_.f_draft;
  draft.Events.Clear();
  for (std::size_t i = 0; i < FDraft::kPositions.size(); ++i) {
    draft.RollProspects(*draft.Pool()[i], FDraft::kPositions[i]);
  }
  for (ListPair* list : draft.Pool()) {
    HockeyNaming::SortByOverall(list->records);
    draft.ShowPoolLines(*list);
  }
  draft.Show();
  Hide();
  draft.RunDraft();
}

}  // namespace frostmark
