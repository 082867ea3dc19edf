#include <string>

#include "program/program.h"

namespace frostmark {
namespace {

// Moves the selected player of SHOWN and its RECORDS to the end of the other line. The selection is
// read again for each step: that is where the selected line then is.
void MovePlayer(HockeyNaming& naming, const char* training, ListBox& shown, ListBox& records,
                ListBox& to_shown, ListBox& to_records) {
  records.SetList(shown.ListIndex(),
                  naming.SetField(records.List(shown.ListIndex()), "Training", training));
  to_shown.AddItem(shown.List(shown.ListIndex()));
  to_records.AddItem(records.List(shown.ListIndex()));
  records.RemoveItem(shown.ListIndex());
  shown.RemoveItem(shown.ListIndex());
}

void SaveRoster(Program& program) {
  Franchise& franchise = program.franchise;
  const ListBox& lead = franchise.MainList;
  const ListBox& training = franchise.TrainList;
  franchise.tempList.Clear();
  for (int i = 0; i < lead.ListCount(); ++i) franchise.tempList.AddItem(lead.List(i));
  for (int i = 0; i < training.ListCount(); ++i) franchise.tempList.AddItem(training.List(i));
  program.ordvik.SaveListFile(franchise.tempList, franchise.UserTeamPath());
}

void ShowPlayer(FPlayer& popup, const std::string& name_of, const std::string& numbers_of) {
  const auto number = [&](const char* field) { return HockeyNaming::GetField(numbers_of, field); };
  popup.Label10.SetCaption(HockeyNaming::GetField(name_of, "Name"));
  popup.Label9.SetCaption(number("Overall"));
  popup.Label12.SetCaption(number("Shooting"));
  popup.Label15.SetCaption(number("Passing"));
  popup.Label6.SetCaption(number("Defense"));
  popup.Label3.SetCaption(number("Agility"));
  popup.Label1.SetCaption(number("Age"));
  popup.Show();
}

}  // namespace

void Franchise::PressToTraining() {
  if (MainRoster.ListIndex() < 0) return;
  MovePlayer(program_.hockey_naming, "Y", MainRoster, MainList, TrainingRoster, TrainList);
  SaveRoster(program_);
}

void Franchise::PressToLeadLine() {
  if (TrainingRoster.ListIndex() < 0) return;
  MovePlayer(program_.hockey_naming, "N", TrainingRoster, TrainList, MainRoster, MainList);
  SaveRoster(program_);
}

void Franchise::ShowLeadPlayer() {
  const std::string record = MainList.List(MainRoster.ListIndex());
  ShowPlayer(program_.f_player, record, record);
}

// Shows no training player on purpose: they are not on display. The name is that of the selected
// lead player, if one is selected, and the numbers are always the first lead player's.
void Franchise::ShowTrainingPlayer() {
  ShowPlayer(program_.f_player, MainList.List(MainRoster.ListIndex()), MainList.List(0));
}

}  // namespace frostmark
