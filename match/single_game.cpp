#include "program/program.h"
#include "records/leagues.h"

namespace frostmark {

FStartGame::FStartGame(Program& program)
    : Screen(program.screens, "FStartGame", "Choose Teams", Border::kNone, OnClose::kEndsProgram),
      program_(program) {
  for (const char* rank : kRanks) {
    List3.AddItem(rank);
    List4.AddItem(rank);
  }
}

void FStartGame::ConnectSingleGame() {
  List3.OnClick = [this] { ChooseLeague(List3, File1); };
  List4.OnClick = [this] { ChooseLeague(List4, File2); };
  File1.OnClick = [this] { ChooseTeam(File1, List1); };
  File2.OnClick = [this] { ChooseTeam(File2, List2); };
  HighButton1.OnClick = [this] { PressBegin(); };
  Label2.OnClick = [this] {
    Hide();
    program_.startup.Show();
  };
  OnMouseDown = [this] { Ordvik::DragWindow(*this); };
}

void FStartGame::ChooseLeague(const ListBox& leagues, FileListBox& teams) {
  teams.SetPath(program_.ordvik.RankFolder(leagues.List(leagues.ListIndex())));
}

void FStartGame::ChooseTeam(const FileListBox& teams, ListBox& roster) {
  roster.Clear();
  program_.ordvik.LoadPlayerFile(roster, teams.Path() + "/" + teams.List(teams.ListIndex()));
}

void FStartGame::PressBegin() {
  const auto refuse = [this](const char* text) {
    program_.desktop.ShowBox({BoxIcon::kStop, BoxButtons::kOk, text});
  };
  // The left column is asked for as the visitor and the right one as the home team, although the
  // game then shows them the other way round.
  if (List1.ListCount() == 0 && List2.ListCount() == 0) {
    refuse("Please select two teams!");
  } else if (List1.ListCount() == 0) {
    refuse("Please select a vistor team!");
  } else if (List2.ListCount() == 0) {
    refuse("Please select a home team!");
  } else {
    program_.game.FranchiseMatch = false;
    program_.hockey_naming.SetUpMatch(List1, File1.List(File1.ListIndex()), List2,
                                      File2.List(File2.ListIndex()));
    Hide();
  }
}

}  // namespace frostmark
