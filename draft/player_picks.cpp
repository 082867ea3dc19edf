#include "draft/retirement.h"
#include "program/program.h"
#include "records/lines/history_line.h"
#include "records/lines/player_line.h"

namespace frostmark {
namespace {

// The list of POSITION alone is open.
void OpenPoolList(FDraft& draft, std::string_view position) {
  draft.SetPoolEnabled(false);
  if (ListPair* list = draft.Pool(position)) list->SetEnabled(true);
}

}  // namespace

// On the user's side the leaver's Training is forgotten: the new player always comes as "N", and
// it is for the user to see to the lines.
void FDraft::StartPlayerTurn() {
  FSelectDraft& choice = program_.f_select_draft;
  choice.List1.Clear();
  choice.List2.Clear();
  const int retiring = RollRetirement(program_.ordvik, program_.front_end, tempList);
  if (retiring >= 0) {
    const std::string record = tempList.List(retiring);
    Events.AddItem(FormatRetirement(record, CurTeam.Caption()));
    OpenPoolList(*this, HockeyNaming::GetField(record, "Position"));
    tempList.RemoveItem(retiring);
    return;
  }
  const int count = tempList.ListCount();
  for (int i = 0; i < count; ++i) {
    choice.List1.AddItem(FormatRosterLine(tempList.List(i)));
    choice.List2.AddItem(tempList.List(i));
    program_.front_end.Yield();
  }
  SetPoolEnabled(false);
  choice.Show();
}

void FDraft::PickFromPool(ListPair& list) {
  if (!AwaitingPick) return;  // in the others' turns the lists are only for browsing
  const Answer answer = program_.front_end.ShowBox(
      {BoxIcon::kQuestion, BoxButtons::kYesNo,
       "Add this player to your squad?\n" + list.shown.List(list.shown.ListIndex())});
  if (answer != Answer::kYes) return;
  const int picked = list.shown.ListIndex();
  const std::string record = list.records.List(picked);
  Events.AddItem(FormatPick(record, CurTeam.Caption()));
  tempList.AddItem(record);
  list.records.RemoveItem(picked);
  list.shown.RemoveItem(picked);
  SetPoolEnabled(true);
  AwaitingPick = false;
}

void FSelectDraft::ReleaseSelected() {
  FDraft& draft = program_.f_draft;
  const Answer answer = program_.front_end.ShowBox(
      {BoxIcon::kQuestion, BoxButtons::kYesNo,
       "You sure you'd like to delete this player?\n" + List1.List(List1.ListIndex())});
  if (answer != Answer::kYes) return;
  draft.tempList.RemoveItem(List1.ListIndex());
  draft.ReleasedPlayer = List2.List(List1.ListIndex());
  draft.Events.AddItem(FormatRelease(draft.ReleasedPlayer, draft.CurTeam.Caption()));
  // The player goes into the pool only after the pick, and can't be taken back in the same turn.
  const std::string position = HockeyNaming::GetField(draft.ReleasedPlayer, "Position");
  if (ListPair* list = draft.Pool(position)) list->SetEnabled(true);
  Hide();
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
