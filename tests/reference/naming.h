#pragma once

#include <string>

#include "tests/reference/roll_trace.h"
#include "tests/reference/text_records.h"

namespace frostmark::reference {

// The record operations that leave their results in variables, and these variables.
class Naming {
 public:
  std::string cur_name;
  std::string cur_position;
  std::string cur_training;
  int cur_overall = 0;
  int cur_passing = 0;
  int cur_shooting = 0;
  int cur_defense = 0;
  int cur_agility = 0;
  int cur_age = 0;
  int team_offense = 0;
  int team_defense = 0;
  int team_overall = 0;

  std::string SetField(const std::string& record, const std::string& field_name,
                       const std::string& value);
  void RateTeam(const Lines& list);
  void SetTrainingFlags(Lines& list);
  void GenPlayerRatings(const std::string& position, bool weaker, RollTrace& rolls);
};

}  // namespace frostmark::reference
