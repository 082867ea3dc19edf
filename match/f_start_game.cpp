#include "match/f_start_game.h"

#include "program/program.h"
#include "records/leagues.h"

namespace frostmark {
namespace {

void ChooseLeague(const Ordvik& ordvik, const ListBox& leagues, FileListBox& teams) {
  teams.SetPath(ordvik.RankFolder(leagues.List(leagues.ListIndex())));
}

void ChooseTeam(Ordvik& ordvik, const FileListBox& teams, ListBox& roster) {
  roster.Clear();
  ordvik.LoadPlayerFile(roster, teams.Path() + "/" + teams.List(teams.ListIndex()));
}

void Begin(Program& program) {
  const auto refuse = [&](const char* text) {
    program.front_end.ShowBox({BoxIcon::kStop, BoxButtons::kOk, text});
  };
  FStartGame& choice = program.f_start_game;
  // The left column is asked for as the visitor and the right one as the home team, although the
  // game then shows them the other way round.
  if (choice.List1.ListCount() == 0 && choice.List2.ListCount() == 0) {
    refuse("Please select two teams!");
  } else if (choice.List1.ListCount() == 0) {
    refuse("Please select a vistor team!");
  } else if (choice.List2.ListCount() == 0) {
    refuse("Please select a home team!");
  } else {
    program.game.FranchiseMatch = false;
    program.hockey_naming.SetUpMatch(choice.List1, choice.File1.List(choice.File1.ListIndex()),
                                     choice.List2, choice.File2.List(choice.File2.ListIndex()));
    choice.Hide();
  }
}

}  // namespace

FStartGame::FStartGame(Program& program)
    : Screen(program.screens, "FStartGame", "Choose Teams", Border::kNone, OnClose::kEndsProgram),
      program_(program) {
  for (const char* rank : kRanks) {
    List3.AddItem(rank);
    List4.AddItem(rank);
  }

  List3.OnClick = [this] { ChooseLeague(program_.ordvik, List3, File1); };
  List4.OnClick = [this] { ChooseLeague(program_.ordvik, List4, File2); };
  File1.OnClick = [this] { ChooseTeam(program_.ordvik, File1, List1); };
  File2.OnClick = [this] { ChooseTeam(program_.ordvik, File2, List2); };
  HighButton1.OnClick = [this] { Begin(program_); };
  Label2.OnClick = [this] {
    Hide();
    program_.startup.Show();
  };
  OnMouseDown = [this] { Ordvik::DragWindow(*this); };
}

}  // namespace frostmark
