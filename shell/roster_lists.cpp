#include "program/program.h"
#include "records/lines/player_line.h"

namespace frostmark {

std::string Franchise::UserTeamPath() const {
  return program_.ordvik.TeamPath(MyRank.Caption(), TeamName.Caption());
}

void Franchise::AddToRoster(const std::string& record) {
  const std::string_view training = FieldView(record, Field::kTraining);
  if (training == "N") {
    MainList.AddItem(record);
    MainRoster.AddItem(FormatRosterLine(record));
  } else if (training == "Y") {
    TrainList.AddItem(record);
    TrainingRoster.AddItem(FormatRosterLine(record));
  }
}

void Franchise::AddAllToRoster(const RecordList& list) {
  const int count = list.ListCount();
  for (int i = 0; i < count; ++i) {
    AddToRoster(list.List(i));
    program_.front_end.Yield();
  }
}

void Franchise::ClearRoster() {
  MainList.Clear();
  MainRoster.Clear();
  TrainList.Clear();
  TrainingRoster.Clear();
}

void Franchise::ShowOwnRatings() {
  const HockeyNaming& naming = program_.hockey_naming;
  Label9.SetCaption(std::to_string(naming.TeamOverall));
  Label12.SetCaption(std::to_string(naming.TeamOffense));
  Label15.SetCaption(std::to_string(naming.TeamDefense));
}

}  // namespace frostmark
