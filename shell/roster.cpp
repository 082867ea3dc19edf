#include "program/program.h"

namespace frostmark {

Franchise::Franchise(Program& program)
    : Screen(program.screens, "Franchise", "Franchise Mode", Border::kNone, OnClose::kEndsProgram),
      program_(program) {}

FPlayer::FPlayer(Program& program)
    : Screen(program.screens, "FPlayer", "Player Stats", Border::kNone, OnClose::kHides) {}

void Franchise::ConnectRoster() {
  Command3.OnClick = [this] { PressToTraining(); };
  Command4.OnClick = [this] { PressToLeadLine(); };
  MainRoster.OnDoubleClick = [this] { ShowLeadPlayer(); };
  TrainingRoster.OnDoubleClick = [this] { ShowTrainingPlayer(); };
  Command6.OnClick = [this] { Minimize(); };
  OnMouseDown = [this] { Ordvik::DragWindow(*this); };
  XTab1.OnMouseDown = [this] { Ordvik::DragWindow(*this); };
}

void FPlayer::ConnectPlayerPopup() {
  Label5.OnClick = [this] { Hide(); };
  XTab1.OnMouseDown = [this] { Ordvik::DragWindow(*this); };
}

namespace {

// Moves the selected player of SHOWN and its RECORDS to the end of the other line. The selection is
// read anew for each step: that is where the selected line then is.
void MovePlayer(HockeyNaming& naming, const char* training, ListBox& shown, ListBox& records,
                ListBox& to_shown, ListBox& to_records) {
  records.SetList(shown.ListIndex(),
                  naming.SetField(records.List(shown.ListIndex()), "Training", training));
  to_shown.AddItem(shown.List(shown.ListIndex()));
  to_records.AddItem(records.List(shown.ListIndex()));
  records.RemoveItem(shown.ListIndex());
  shown.RemoveItem(shown.ListIndex());
}

}  // namespace

void Franchise::PressToTraining() {
  if (MainRoster.ListIndex() < 0) return;
  MovePlayer(program_.hockey_naming, "Y", MainRoster, MainList, TrainingRoster, TrainList);
  SaveRoster();
}

void Franchise::PressToLeadLine() {
  if (TrainingRoster.ListIndex() < 0) return;
  MovePlayer(program_.hockey_naming, "N", TrainingRoster, TrainList, MainRoster, MainList);
  SaveRoster();
}

void Franchise::SaveRoster() {
  tempList.Clear();
  for (int i = 0; i < MainList.ListCount(); ++i) tempList.AddItem(MainList.List(i));
  for (int i = 0; i < TrainList.ListCount(); ++i) tempList.AddItem(TrainList.List(i));
  program_.ordvik.SaveListFile(tempList, UserTeamPath());
}

void Franchise::ShowLeadPlayer() {
  const int selected = MainRoster.ListIndex();
  ShowPlayer(selected, selected);
}

// Shows no training player on purpose: they are not on display. The name is that of the selected
// lead player, if one is selected, and the numbers are always the first lead player's.
void Franchise::ShowTrainingPlayer() { ShowPlayer(MainRoster.ListIndex(), 0); }

void Franchise::ShowPlayer(int name_of, int numbers_of) {
  FPlayer& popup = program_.f_player;
  const auto number = [&](const char* field) {
    return HockeyNaming::GetField(MainList.List(numbers_of), field);
  };
  popup.Label10.SetCaption(HockeyNaming::GetField(MainList.List(name_of), "Name"));
  popup.Label9.SetCaption(number("Overall"));
  popup.Label12.SetCaption(number("Shooting"));
  popup.Label15.SetCaption(number("Passing"));
  popup.Label6.SetCaption(number("Defense"));
  popup.Label3.SetCaption(number("Agility"));
  popup.Label1.SetCaption(number("Age"));
  popup.Show();
}

}  // namespace frostmark
