#include "program/program.h"
#include "records/lines/history_line.h"
#include "records/lines/player_line.h"

namespace frostmark {

FSelectDraft::FSelectDraft(Program& program)
    : Screen(program.screens, "FSelectDraft", "Select Player", Border::kNone, OnClose::kNothing),
      program_(program) {}

void FDraft::ConnectPicks() {
  for (ListPair* list : Pool()) {
    list->shown.OnDoubleClick = [this, list] { PickFromPool(*list); };
  }
  Command1.OnClick = [this] { PressNewSeason(); };
  OnMouseDown = [this] { Ordvik::DragWindow(*this); };
  XTab1.OnMouseDown = [this] { Ordvik::DragWindow(*this); };
}

void FSelectDraft::ConnectRelease() {
  List1.OnDoubleClick = [this] { ReleaseSelected(); };
  OnMouseDown = [this] { Ordvik::DragWindow(*this); };
  XTab1.OnMouseDown = [this] { Ordvik::DragWindow(*this); };
}

void FDraft::AddRetirement(const std::string& record) {
  Events.AddItem(FormatRetirement(record, CurTeam.Caption()));
}

void FDraft::AddRelease(const std::string& record) {
  Events.AddItem(FormatRelease(record, CurTeam.Caption()));
}

void FDraft::AddPick(const std::string& record) {
  Events.AddItem(FormatPick(record, CurTeam.Caption()));
}

// On the user's side the leaver's Training is forgotten: his new man always comes as "N", and it is
// for the user to see to his lines.
void FDraft::StartPlayerTurn() {
  FSelectDraft& choice = program_.f_select_draft;
  choice.List1.Clear();
  choice.List2.Clear();
  const int retiring = FindRetirement();
  if (retiring >= 0) {
    const std::string record = tempList.List(retiring);
    AddRetirement(record);
    OpenPoolList(HockeyNaming::GetField(record, "Position"));
    tempList.RemoveItem(retiring);
    return;
  }
  const int count = tempList.ListCount();
  for (int i = 0; i < count; ++i) {
    choice.List1.AddItem(FormatRosterLine(tempList.List(i)));
    choice.List2.AddItem(tempList.List(i));
    program_.desktop.Yield();
  }
  SetPoolEnabled(false);
  choice.Show();
}

void FDraft::OpenPoolList(const std::string& position) {
  SetPoolEnabled(false);
  if (ListPair* list = Pool(position)) list->SetEnabled(true);
}

void FDraft::PickFromPool(ListPair& list) {
  if (!AwaitingPick) return;  // in the others' turns the lists are only for browsing
  const Answer answer = program_.desktop.ShowBox(
      {BoxIcon::kQuestion, BoxButtons::kYesNo,
       "Add this player to your squad?\n" + list.shown.List(list.shown.ListIndex())});
  if (answer != Answer::kYes) return;
  const int picked = list.shown.ListIndex();
  const std::string record = list.records.List(picked);
  AddPick(record);
  tempList.AddItem(record);
  list.records.RemoveItem(picked);
  list.shown.RemoveItem(picked);
  SetPoolEnabled(true);
  AwaitingPick = false;
}

void FSelectDraft::ReleaseSelected() {
  FDraft& draft = program_.f_draft;
  const Answer answer = program_.desktop.ShowBox(
      {BoxIcon::kQuestion, BoxButtons::kYesNo,
       "You sure you'd like to delete this player?\n" + List1.List(List1.ListIndex())});
  if (answer != Answer::kYes) return;
  draft.tempList.RemoveItem(List1.ListIndex());
  draft.ReleasedPlayer = List2.List(List1.ListIndex());
  draft.AddRelease(draft.ReleasedPlayer);
  // He goes into the pool only after the pick, so the user can't take him back in the same turn.
  const std::string position = HockeyNaming::GetField(draft.ReleasedPlayer, "Position");
  if (ListPair* list = draft.Pool(position)) list->SetEnabled(true);
  Hide();
}

void FDraft::AddDraftee(std::string& record) {
  if (ListPair* list = Pool(FieldView(record, Field::kPosition))) {
    list->records.AddItem(record);
    list->shown.Clear();
    HockeyNaming::SortByOverall(list->records);
    ShowPoolLines(*list);
  }
  record.clear();
}

// The labels of the next opponent are left as they are: the user reads last season's news until the
// first game tells better.
void FDraft::PressNewSeason() {
  Franchise& franchise = program_.franchise;
  franchise.LoadNewTeams();
  franchise.NextWeek.SetCaption("Week 1");
  franchise.tempList.Clear();
  franchise.ClearRoster();
  program_.ordvik.LoadPlayerFile(franchise.tempList, franchise.UserTeamPath());
  franchise.AddAllToRoster(franchise.tempList);
  // The desk lies in front before the year is saved, and is closed no more easily than the draft
  // until then.
  franchise.SetOnClose(OnClose::kTurnsYear);
  Hide();
  franchise.Show();
  franchise.SaveGame();
  franchise.SetOnClose(OnClose::kEndsProgram);
}

}  // namespace frostmark
