#include "tests/reference/match_machines.h"

namespace frostmark::reference {

void UnwatchedMatch::LoadGameLines(const Lines& list1, const Lines& list2) {
  line1_stats.clear();
  line2_stats.clear();
  goals_team1 = 0;
  goals_team2 = 0;
  for (const std::string& record : list1) {
    if (GetField(record, "Training") == "N") line1_stats.push_back(record);
  }
  for (const std::string& record : list2) {
    if (GetField(record, "Training") == "N") line2_stats.push_back(record);
  }
}

void UnwatchedMatch::SimulateGame(RollTrace& rolls) {
  FaceOff(rolls);
  for (int step = 0; step < 600; ++step) PlayStep(rolls);
}

void UnwatchedMatch::LoadIceLists() {
  line_list.clear();
  def_list.clear();
  if (puck_team == 1) {
    for (int i = CountOf(line1_stats) - 1; i >= 0; --i) {
      line_list.push_back(ItemOf(line1_stats, i));
      def_list.push_back(ItemOf(line2_stats, i));
    }
  }
  if (puck_team == 2) {
    for (int i = CountOf(line2_stats) - 1; i >= 0; --i) {
      def_list.push_back(ItemOf(line1_stats, i));
      line_list.push_back(ItemOf(line2_stats, i));
    }
  }
}

void UnwatchedMatch::PlayStep(RollTrace& rolls) {
  LoadIceLists();
  if (passes_left == -2) {
    FaceOff(rolls);
    return;
  }
  if (passes_left == -1) {
    OutletStep(rolls);
    return;
  }
  if (passes_left == 0) {
    ShotStep(rolls);
    return;
  }
  const int way = rolls.Next(2, "unwatched PlayStep, one of two forwards");
  if (puck_carrier.empty()) FaceOff(rolls);
  for (const std::string& record : line_list) {
    if (Contains(record, puck_position)) passer_name = GetField(puck_carrier, "Name");
  }
  if (puck_position == "RF") {
    puck_position = way == 1 ? "CF" : "LF";
  } else if (puck_position == "CF") {
    puck_position = way == 1 ? "RF" : "LF";
  } else if (puck_position == "LF") {
    puck_position = way == 1 ? "CF" : "RF";
  } else {
    const int forward = rolls.Next(3, "unwatched PlayStep, one of three forwards");
    if (puck_position == "RD" || puck_position == "LD") {
      if (forward == 1) puck_position = "LF";
      if (forward == 2) puck_position = "CF";
      if (forward == 3) puck_position = "RF";
    }
  }
  for (const std::string& record : line_list) {
    if (Contains(record, puck_position)) puck_carrier = record;
  }
  passes_left = Short(passes_left - 1);
}

void UnwatchedMatch::FaceOff(RollTrace& rolls) {
  std::string first_center;
  std::string second_center;
  for (const std::string& record : line1_stats) {
    if (Contains(record, "CF")) first_center = record;
  }
  for (const std::string& record : line2_stats) {
    if (Contains(record, "CF")) second_center = record;
  }
  if (first_center.empty()) {
    for (const std::string& record : line1_stats) {
      if (Contains(record, "RF")) first_center = record;
    }
  }
  if (second_center.empty()) {
    for (const std::string& record : line2_stats) {
      if (Contains(record, "RF")) second_center = record;
    }
  }
  puck_team = rolls.Next(2, "unwatched FaceOff, who wins it");
  puck_carrier = puck_team == 1 ? first_center : second_center;
  LoadIceLists();
  passes_left = rolls.Next(6, "unwatched FaceOff, passes");
}

void UnwatchedMatch::OutletStep(RollTrace& rolls) {
  LoadIceLists();
  for (const std::string& record : line_list) {
    if (Contains(record, puck_position)) passer_name = GetField(puck_carrier, "Name");
  }
  if (Contains(defender, "GO")) {
    puck_position = rolls.Next(2, "unwatched OutletStep of a goalie") == 1 ? "RD" : "LD";
  } else {
    const int forward = rolls.Next(3, "unwatched OutletStep of a defenceman");
    if (forward == 1) puck_position = "RF";
    if (forward == 2) puck_position = "CF";
    if (forward == 3) puck_position = "LF";
  }
  for (const std::string& record : line_list) {
    if (Contains(record, puck_position)) puck_carrier = record;
  }
  passes_left = rolls.Next(4, "unwatched OutletStep, passes");
}

void UnwatchedMatch::ShotStep(RollTrace& rolls) {
  LoadIceLists();
  int defense = 0;
  int shooting = 0;
  defender_position = rolls.Next(2, "unwatched ShotStep, which defenceman") == 1 ? "RD" : "LD";
  for (const std::string& record : def_list) {
    if (!Contains(record, defender_position)) continue;
    defender = record;
    defense = StrictNumber(GetField(record, "Defense"));
  }
  const int shot = rolls.Next(100, "unwatched ShotStep, the shot");
  if (puck_carrier.empty()) {
    FaceOff(rolls);
  } else {
    shooting = StrictNumber(GetField(puck_carrier, "Shooting"));
  }
  if (shot > shooting) return;
  if (rolls.Next(110, "unwatched ShotStep, the defender") <= defense) {
    TurnOver();
    return;
  }
  rolls.Next(100, "unwatched ShotStep, the roll for nothing");
  for (const std::string& record : def_list) {
    if (!Contains(record, "GO")) continue;
    defender = record;
    defense = StrictNumber(GetField(record, "Defense"));
  }
  if (rolls.Next(100, "unwatched ShotStep, the goalie's first") > defense) return;
  if (rolls.Next(105, "unwatched ShotStep, the goalie's second") <= defense) {
    TurnOver();
    return;
  }
  if (puck_team == 1) goals_team1 = Short(goals_team1 + 1);
  if (puck_team == 2) goals_team2 = Short(goals_team2 + 1);
  passes_left = -2;
}

void UnwatchedMatch::TurnOver() {
  passer_name = GetField(puck_carrier, "Name");
  puck_carrier = defender;
  puck_team = puck_team == 1 ? 2 : 1;
  LoadIceLists();
  passes_left = -1;
}

}  // namespace frostmark::reference
