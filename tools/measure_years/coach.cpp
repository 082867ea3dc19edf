#include "tools/measure_years/coach.h"

#include "records/leagues.h"

namespace frostmark {
namespace {

double OverallOf(const std::string& record) {
  return LenientNumber(FieldView(record, Field::kOverall));
}

// The index of the best player of LIST, of POSITION if that is given; -1 if there is none.
int BestOf(const RecordList& list, std::string_view position) {
  int best = -1;
  for (int i = 0; i < list.ListCount(); ++i) {
    if (FieldView(list.List(i), Field::kPosition) != position) continue;
    if (best < 0 || OverallOf(list.List(i)) > OverallOf(list.List(best))) best = i;
  }
  return best;
}

int WeakestOf(const RecordList& list) {
  int weakest = 0;
  for (int i = 1; i < list.ListCount(); ++i) {
    if (OverallOf(list.List(i)) < OverallOf(list.List(weakest))) weakest = i;
  }
  return weakest;
}

}  // namespace

void Coach::BeginFranchise() {
  Startup& startup = program_.startup;
  program_.Start();
  startup.HighButton2.Click();
  startup.HighButton4.Click();
  startup.HighButton7.Click();
  startup.HighButton6.Click();
}

void Coach::PlayYear() {
  SetLines();
  try {
    program_.franchise.Command2.Click();
  } catch (const PressLeftOpen&) {
  }
  program_.f_results.Command1.Click();
  program_.f_draft.Command1.Click();
}

void Coach::Wait() {
  if (!program_.f_draft.AwaitingPick) throw PressLeftOpen();
  TakeTurnInDraft();
}

Answer Coach::ShowBox(const MessageBox& box) {
  if (box.buttons == BoxButtons::kOk) return Answer::kOk;
  return box.icon == BoxIcon::kQuestion ? Answer::kYes : Answer::kNo;
}

// A week after the last: the run goes on through the off-season.
std::string Coach::AskText(const std::string&) { return "11"; }

void Coach::SetLines() {
  Franchise& franchise = program_.franchise;
  for (const char* position : kRosterOrder) {
    for (int i = BestOf(franchise.MainList, position); i >= 0;
         i = BestOf(franchise.MainList, position)) {
      franchise.MainRoster.Select(i);
      franchise.Command3.Click();
    }
    franchise.TrainingRoster.Select(BestOf(franchise.TrainList, position));
    franchise.Command4.Click();
  }
}

void Coach::TakeTurnInDraft() {
  FSelectDraft& choice = program_.f_select_draft;
  if (choice.Visible()) {
    choice.List1.DoubleClick(WeakestOf(choice.List2));
    return;
  }
  for (ListPair* list : program_.f_draft.Pool()) {
    if (list->shown.Enabled()) return list->shown.DoubleClick(0);
  }
}

}  // namespace frostmark
