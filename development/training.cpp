#include "program/program.h"

namespace frostmark {
namespace {

constexpr int kTrainingChance = 65;  // of 100, for a player of the training line
constexpr int kGoalieChance = 20;    // of 100, for a goalie on either line

// What a skill of a player of AGE moves by: the young gain, from 30 on it goes downhill. In between
// nothing moves, and nothing is rolled.
int RollChange(Ordvik& ordvik, double age) {
  if (age < 25) return ordvik.RollUpTo(4);
  if (age < 28) return ordvik.RollUpTo(2);
  if (age < 30) return 0;
  return -ordvik.RollUpTo(3);
}

// Passing stands twice on purpose: it is what practice is mostly about.
constexpr const char* kTrainingSkills[] = {"Passing", "Shooting", "Passing", "Defense", "Agility"};
constexpr const char* kGoalieSkills[] = {"Passing", "Defense"};

}  // namespace

void Franchise::Develop(RecordList& list, int i, const char* skill) {
  const double age = LenientNumber(FieldView(list.List(i), Field::kAge));
  const int change = RollChange(program_.ordvik, age);
  if (change == 0) return;
  list.SetList(i, program_.hockey_naming.SetField(list.List(i), skill, std::to_string(change)));
}

void Franchise::TrainThem(RecordList& list, const std::string& path) {
  Ordvik& ordvik = program_.ordvik;
  const int count = list.ListCount();
  for (int i = 0; i < count; ++i) {
    if (FieldView(list.List(i), Field::kTraining) == "Y" &&
        ordvik.RollUpTo(100) <= kTrainingChance) {
      Develop(list, i, kTrainingSkills[ordvik.RollUpTo(5) - 1]);
    }
    if (FieldView(list.List(i), Field::kPosition) == "GO" &&
        ordvik.RollUpTo(100) <= kGoalieChance) {
      Develop(list, i, kGoalieSkills[ordvik.RollUpTo(2) - 1]);
    }
    // Each team plays once in the last week, so that everybody grows a year older in a season.
    if (NextWeek.Caption() == "Week 10") {
      list.SetList(i, program_.hockey_naming.SetField(list.List(i), "Age", "1"));
    }
    program_.desktop.Yield();
  }
  // The user picks his own lines. A team whose path holds his team's name counts as his.
  if (!Ordvik::ContainsText(1, path, TeamName.Caption())) {
    program_.hockey_naming.SetTrainingFlags(list);
  }
  ordvik.SaveListFile(list, path);
}

}  // namespace frostmark
