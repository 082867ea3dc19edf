#include "program/program.h"
#include "records/lines/pool_line.h"

namespace frostmark {
namespace {

constexpr int kProspectsOfPosition = 20;

// The pool line of every record, added to what is shown.
void ShowPoolLines(UiQueue& queue, ListPair& list) {
  const int count = list.records.ListCount();
  for (int i = 0; i < count; ++i) {
    list.shown.AddItem(FormatPoolLine(list.records.List(i)));
    queue.Yield();
  }
}

// New players of POSITION, as yet without their pool lines.
void RollProspects(Program& program, ListPair& list, const char* position) {
  HockeyNaming& naming = program.hockey_naming;
  list.shown.Clear();
  list.records.Clear();
  for (int i = 0; i < kProspectsOfPosition; ++i) {
    const std::string name = naming.GenPlayerName();
    naming.GenPlayerRatings(position, true);
    list.records.AddItem(naming.GeneratedRecord(name, position, "N"));
    program.front_end.Yield();
  }
}

}  // namespace

// A second press while the pool is rolled runs the whole of this once more inside the first.
void FResults::PressDraft() {
  FDraft& draft = program_.f_draft;
  draft.Events.Clear();
  for (std::size_t i = 0; i < FDraft::kPositions.size(); ++i) {
    RollProspects(program_, *draft.Pool()[i], FDraft::kPositions[i]);
  }
  for (ListPair* list : draft.Pool()) {
    HockeyNaming::SortByOverall(list->records);
    ShowPoolLines(program_.front_end, *list);
  }
  draft.Show();
  Hide();
  draft.RunDraft();
}

void FDraft::AddDraftee(std::string& record) {
  if (ListPair* list = Pool(FieldView(record, Field::kPosition))) {
    list->records.AddItem(record);
    list->shown.Clear();
    HockeyNaming::SortByOverall(list->records);
    ShowPoolLines(program_.front_end, *list);
  }
  record.clear();
}

}  // namespace frostmark
