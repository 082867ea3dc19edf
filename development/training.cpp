#include <array>
#include <string>
#include <string_view>

#include "program/program.h"

namespace frostmark {
namespace {

constexpr std::string_view kLastWeek = "Week 10";

// Of 100 after each game: for a player of the training line, and for a goalie on either line.
constexpr int kChanceDie = 100;
constexpr int kTrainingChance = 65;
constexpr int kGoalieChance = 20;

// The ages, in years, at which a band of development ends, and what a skill gains in it at most.
constexpr int kYouthEnds = 25;
constexpr int kYouthGainDie = 4;
constexpr int kGrowthEnds = 28;
constexpr int kGrowthGainDie = 2;
constexpr int kDeclineBegins = 30;
constexpr int kDeclineDie = 3;  // what it loses from then on

// What a skill of a player of AGE moves by. Between growth and decline nothing moves, and nothing
// is rolled.
int RollChange(Ordvik& ordvik, double age) {
  if (age < kYouthEnds) return ordvik.RollUpTo(kYouthGainDie);
  if (age < kGrowthEnds) return ordvik.RollUpTo(kGrowthGainDie);
  if (age < kDeclineBegins) return 0;
  return -ordvik.RollUpTo(kDeclineDie);
}

// Passing stands twice on purpose: it is what practice is mostly about.
constexpr std::array kTrainingSkills = {"Passing", "Shooting", "Passing", "Defense", "Agility"};
constexpr std::array kGoalieSkills = {"Passing", "Defense"};

// Changes one of SKILLS of player I of LIST.
template <std::size_t kCount>
void Develop(Program& program, RecordList& list, int i,
             const std::array<const char*, kCount>& skills) {
  const int roll = program.ordvik.RollUpTo(static_cast<int>(kCount));
  const double age = LenientNumber(FieldView(list.List(i), Field::kAge));
  const int change = RollChange(program.ordvik, age);
  if (change == 0) return;
  const char* const skill = skills[static_cast<std::size_t>(roll - 1)];
  list.SetList(i, program.hockey_naming.SetField(list.List(i), skill, std::to_string(change)));
}

}  // namespace

void Franchise::TrainThem(RecordList& list, const std::string& path) {
  Ordvik& ordvik = program_.ordvik;
  const int count = list.ListCount();
  for (int i = 0; i < count; ++i) {
    if (FieldView(list.List(i), Field::kTraining) == "Y" &&
        ordvik.RollUpTo(kChanceDie) <= kTrainingChance) {
      Develop(program_, list, i, kTrainingSkills);
    }
    if (FieldView(list.List(i), Field::kPosition) == "GO" &&
        ordvik.RollUpTo(kChanceDie) <= kGoalieChance) {
      Develop(program_, list, i, kGoalieSkills);
    }
    // Each team plays once in the last week, so that everybody grows a year older in a season.
    if (NextWeek.Caption() == kLastWeek) {
      list.SetList(i, program_.hockey_naming.SetField(list.List(i), "Age", "1"));
    }
    program_.front_end.Yield();
  }
  // The user picks their own lines. A team whose path holds their team's name counts as theirs.
  if (!Ordvik::ContainsText(1, path, TeamName.Caption())) {
    program_.hockey_naming.SetTrainingFlags(list);
  }
  ordvik.SaveListFile(list, path);
}

}  // namespace frostmark
