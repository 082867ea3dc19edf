#include "tools/screenshots/album.h"

namespace frostmark {
namespace {

// Some weeks into a season: the desk of the franchise, tab by tab, and a player.
void TakeDesk(Album& album) {
  Program& program = album.program();
  Franchise& franchise = program.franchise;
  program.startup.HighButton4.Click();
  program.startup.HighButton7.Click();
  program.startup.HighButton6.Click();
  franchise.SimRunning = true;
  for (int week = 1; week < 5; ++week) franchise.HighButton1.Click();
  album.Take(franchise, "franchise-main");
  franchise.XTab1.SetFront(1);
  album.Take(franchise, "franchise-alerts");
  franchise.XTab1.SetFront(2);
  album.Take(franchise, "franchise-standings");
  franchise.XTab1.SetFront(3);
  franchise.MainRoster.DoubleClick(1);
  album.Take(program.f_player, "player");
  program.f_player.Label5.Click();
  album.Take(franchise, "franchise-roster");
  franchise.XTab1.SetFront(0);
}

// Plays the season to its end and looks at the results.
void TakeResults(Album& album) {
  Franchise& franchise = album.program().franchise;
  FResults& results = album.program().f_results;
  // The last press of a season may stay open, waiting for the file of an opponent who has moved to
  // another league. It is left there.
  album.front_end().while_waiting = [&results] {
    if (results.Visible()) throw ProgramEnded{};
  };
  while (!results.Visible()) {
    try {
      franchise.HighButton1.Click();
    } catch (const ProgramEnded&) {
    }
  }
  album.front_end().while_waiting = nullptr;
  album.Take(results, "results");
  results.XTab1.SetFront(1);
  album.Take(results, "results-standings");
  results.XTab1.SetFront(0);
}

// The user's turn, one step at a time: whom to let go, then whom to take.
void TakeTurn(Album& album) {
  FDraft& draft = album.program().f_draft;
  FSelectDraft& choice = album.program().f_select_draft;
  if (!draft.AwaitingPick) return;
  if (choice.Visible()) {
    album.Take(choice, "draft-let-go");
    choice.List1.DoubleClick(3);
    return;
  }
  for (ListPair* list : draft.Pool()) {
    if (!list->shown.Enabled()) continue;
    album.Take(draft, "draft-your-turn");
    list->shown.DoubleClick(0);
    return;
  }
}

void TakeDraft(Album& album) {
  FDraft& draft = album.program().f_draft;
  bool others_taken = false;
  album.front_end().while_waiting = [&] {
    constexpr int kSomeHistory = 20;
    if (!others_taken && draft.Events.ListCount() > kSomeHistory) {
      others_taken = true;
      album.Take(draft, "draft");
    }
    TakeTurn(album);
  };
  album.program().f_results.Command1.Click();
  album.front_end().while_waiting = nullptr;
}

}  // namespace

void TakeFranchise(Album& album) {
  TakeDesk(album);
  TakeResults(album);
  TakeDraft(album);
}

}  // namespace frostmark
