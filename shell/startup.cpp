#include "shell/startup.h"

#include "program/program.h"

namespace frostmark {
namespace {

void ChooseTeams(Program& program) {
  FStartGame& choice = program.f_start_game;
  // The folder of the leagues holds no files, so both lists stay empty until a league is chosen.
  const std::string teams = program.ordvik.AppPath() + "/Teams";
  choice.File1.SetPath(teams);
  choice.File2.SetPath(teams);
  choice.Show();
  program.startup.Hide();
}

}  // namespace

Startup::Startup(Program& program)
    : Screen(program.screens, "Startup", "Frostmark", Border::kNone, OnClose::kEndsProgram),
      program_(program) {
  HighButton1.OnClick = [this] { ChooseTeams(program_); };
  HighButton2.OnClick = [this] {
    const bool show = !HighButton4.Visible();
    HighButton4.SetVisible(show);
    HighButton5.SetVisible(show);
  };
  HighButton3.OnClick = [this] { program_.front_end.EndProgram(); };
  HighButton4.OnClick = [this] { PressNew(); };
  HighButton5.OnClick = [this] { PressLoad(); };
  Label1.OnClick = [this] { program_.front_end.OpenWebPage(Label1.Caption()); };
  Label2.OnClick = [this] { program_.team_creator.Show(); };

  HighButton7.OnClick = [this] { PressGenerate(); };
  HighButton6.OnClick = [this] { PressBegin(); };
  Label3.OnClick = [this] { Frame1.Hide(); };
  Label12.OnClick = [this] { ClickWantedOverall(); };

  OnMouseDown = [this] { Ordvik::DragWindow(*this); };
}

}  // namespace frostmark
