#include "program/program.h"

namespace frostmark {

Startup::Startup(Program& program)
    : Screen(program.screens, "Startup", "Frostmark", Border::kNone, OnClose::kEndsProgram),
      program_(program) {}

void Ordvik::DragWindow(Screen& form) { form.RequestDrag(); }

void Startup::ConnectStartScreen() {
  HighButton1.OnClick = [this] { ClickSingleGame(); };
  HighButton2.OnClick = [this] { ClickFranchise(); };
  HighButton3.OnClick = [this] { program_.desktop.EndProgram(); };
  Label1.OnClick = [this] { program_.desktop.OpenWebPage(Label1.Caption()); };
  Label2.OnClick = [this] { program_.team_creator.Show(); };
  OnMouseDown = [this] { Ordvik::DragWindow(*this); };
}

void Startup::ClickSingleGame() {
  FStartGame& choice = program_.f_start_game;
  // The folder of the leagues holds no files, so both lists stay empty until a league is chosen.
  const std::string teams = program_.ordvik.AppPath() + "/Teams";
  choice.File1.SetPath(teams);
  choice.File2.SetPath(teams);
  choice.Show();
  Hide();
}

void Startup::ClickFranchise() {
  const bool show = !HighButton4.Visible();
  HighButton4.SetVisible(show);
  HighButton5.SetVisible(show);
}

}  // namespace frostmark
