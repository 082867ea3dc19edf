#include "shell/franchise.h"

#include "program/program.h"

namespace frostmark {

Franchise::Franchise(Program& program)
    : Screen(program.screens, "Franchise", "Franchise Mode", Border::kNone, OnClose::kEndsProgram),
      program_(program) {
  HighButton1.OnClick = [this] { PressBegin(); };
  HighButton2.OnClick = [this] {
    Hide();
    program_.startup.Show();
  };
  HighButton3.OnClick = [this] { SaveGame(); };
  Command2.OnClick = [this] { PressSim(); };
  Command5.OnClick = [this] { Command5.Hide(); };  // which ends a Sim run
  Command6.OnClick = [this] { Minimize(); };
  Timer1.OnTick = [this] { Label18.SetVisible(!Label18.Visible()); };

  Command3.OnClick = [this] { PressToTraining(); };
  Command4.OnClick = [this] { PressToLeadLine(); };
  MainRoster.OnDoubleClick = [this] { ShowLeadPlayer(); };
  TrainingRoster.OnDoubleClick = [this] { ShowTrainingPlayer(); };

  Command1.OnClick = [this] { NextWeek.SetCaption("Off Season"); };
  OnMouseDown = [this] { Ordvik::DragWindow(*this); };
  XTab1.OnMouseDown = [this] { Ordvik::DragWindow(*this); };
}

std::array<ListBox*, kRankCount> Franchise::RankLists() {
  return {&RankF, &RankE, &RankD, &RankC, &RankB, &RankA};
}

std::array<ListBox*, kRankCount> Franchise::StatRankLists() {
  return {&StatRankF, &StatRankE, &StatRankD, &StatRankC, &StatRankB, &StatRankA};
}

}  // namespace frostmark
