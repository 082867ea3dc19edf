#include "tests/reference/naming.h"

#include <cmath>

namespace frostmark::reference {

std::string Naming::SetField(const std::string& record, const std::string& field_name,
                             const std::string& value) {
  if (record.empty()) return "";
  Lines parts = SplitAt(record, ',');

  // Agility takes no amount: it is asked for and stays as it is.
  double amount = 0;
  if (field_name == "Shooting" || field_name == "Passing" || field_name == "Defense" ||
      field_name == "Age") {
    amount = std::floor(LeadingNumber(value));
  }
  const auto add_to = [&](std::size_t part) {
    parts.at(part) = std::to_string(Short(std::floor(LeadingNumber(parts.at(part)) + amount)));
  };
  if (field_name == "Passing") add_to(3);
  if (field_name == "Shooting") add_to(4);
  if (field_name == "Defense") add_to(5);
  if (field_name == "Agility") add_to(6);
  if (field_name == "Age") add_to(7);
  if (field_name == "Training") parts.at(8) = value;

  for (std::size_t skill = 3; skill <= 6; ++skill) {
    if (LeadingNumber(parts.at(skill)) > 99) parts.at(skill) = "99";
  }

  cur_name = parts.at(0);
  cur_position = parts.at(1);
  cur_overall = Short(LeadingNumber(parts.at(2)));
  cur_passing = Short(LeadingNumber(parts.at(3)));
  cur_shooting = Short(LeadingNumber(parts.at(4)));
  cur_defense = Short(LeadingNumber(parts.at(5)));
  cur_agility = Short(LeadingNumber(parts.at(6)));
  cur_age = Short(LeadingNumber(parts.at(7)));
  cur_training = parts.at(8);

  const bool known = cur_position == "GO" || cur_position == "LD" || cur_position == "RD" ||
                     cur_position == "LF" || cur_position == "CF" || cur_position == "RF";
  if (known) {
    parts.at(2) = std::to_string(
        OverallFor(cur_position, cur_passing, cur_shooting, cur_defense, cur_agility, cur_overall));
  }
  return JoinWith(parts, ',');
}

void Naming::RateTeam(const Lines& list) {
  team_offense = 0;
  team_defense = 0;
  int forwards = 0;
  int backs = 0;
  for (const std::string& record : list) {
    if (record.empty()) return;
    const std::string position = GetField(record, "Position");
    const int overall = NumberField(record, "Overall");
    if (position == "CF" || position == "RF" || position == "LF") {
      team_offense = Short(team_offense + overall);
      ++forwards;
    }
    if (position == "LD" || position == "GO" || position == "RD") {
      team_defense = Short(team_defense + overall);
      ++backs;
    }
  }
  if (team_offense == 0 || team_defense == 0) return;
  team_offense = Nearest(team_offense, forwards);
  team_defense = Nearest(team_defense, backs);
  team_overall = Nearest(team_offense + team_defense, 2);
}

void Naming::SetTrainingFlags(Lines& list) {
  const int count = CountOf(list);
  for (int i = 0; i < count; ++i) {
    std::string& at_i = list[static_cast<std::size_t>(i)];
    if (GetField(at_i, "Position") == "GO") {
      at_i = SetField(at_i, "Training", "N");
      continue;
    }
    for (int j = count - 1; j >= 1; --j) {
      std::string& at_j = list[static_cast<std::size_t>(j)];
      if (j == i || GetField(at_j, "Position") != GetField(at_i, "Position")) continue;
      const std::string from_i = at_i;
      const std::string from_j = at_j;
      const bool better = NumberField(from_i, "Overall") > NumberField(from_j, "Overall");
      at_j = SetField(from_i, "Training", better ? "N" : "Y");
      at_i = SetField(from_j, "Training", better ? "Y" : "N");
    }
  }
}

void Naming::GenPlayerRatings(const std::string& position, bool weaker, RollTrace& rolls) {
  const int base = weaker ? 95 : 100;
  cur_passing = base - rolls.Next(30, "GenPlayerRatings, passing");
  cur_shooting = base - rolls.Next(30, "GenPlayerRatings, shooting");
  cur_defense = base - rolls.Next(30, "GenPlayerRatings, defense");
  cur_agility = base - rolls.Next(30, "GenPlayerRatings, agility");
  cur_age = 25 - rolls.Next(7, "GenPlayerRatings, age");
  cur_overall =
      OverallFor(position, cur_passing, cur_shooting, cur_defense, cur_agility, cur_overall);
}

}  // namespace frostmark::reference
