#include "tests/reference/match_machines.h"

namespace frostmark::reference {

namespace {

std::string NameOf(const std::string& record) { return GetField(record, "Name"); }

}  // namespace

void WatchedMatch::Report(const std::string& line) { events.insert(events.begin(), line); }

void WatchedMatch::LoadIceLists() {
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

void WatchedMatch::PlayStep(RollTrace& rolls) {
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
  const int way = rolls.Next(2, "watched PlayStep, one of two forwards");
  for (const std::string& record : line_list) {
    if (Contains(record, puck_position)) passer_name = NameOf(puck_carrier);
  }
  if (puck_position == "RF") {
    puck_position = way == 1 ? "CF" : "LF";
  } else if (puck_position == "CF") {
    puck_position = way == 1 ? "RF" : "LF";
  } else if (puck_position == "LF") {
    puck_position = way == 1 ? "CF" : "RF";
  } else {
    const int forward = rolls.Next(3, "watched PlayStep, one of three forwards");
    if (puck_position == "RD" || puck_position == "LD") {
      if (forward == 1) puck_position = "LF";
      if (forward == 2) puck_position = "CF";
      if (forward == 3) puck_position = "RF";
    }
  }
  for (const std::string& record : line_list) {
    if (!Contains(record, puck_position)) continue;
    puck_carrier = record;
    Report(passer_name + " passes it to " + NameOf(puck_carrier));
  }
  passes_left = Short(passes_left - 1);
}

void WatchedMatch::FaceOff(RollTrace& rolls) {
  std::string first_center;
  std::string second_center;
  for (const std::string& record : line1_stats) {
    if (Contains(record, "CF")) first_center = record;
  }
  for (const std::string& record : line2_stats) {
    if (Contains(record, "CF")) second_center = record;
  }
  puck_team = rolls.Next(2, "watched FaceOff, who wins it");
  puck_carrier = puck_team == 1 ? first_center : second_center;
  LoadIceLists();
  Report(NameOf(puck_carrier) + " wins the face off!");
  passes_left = rolls.Next(6, "watched FaceOff, passes");
}

void WatchedMatch::OutletStep(RollTrace& rolls) {
  LoadIceLists();
  for (const std::string& record : line_list) {
    if (Contains(record, puck_position)) passer_name = NameOf(puck_carrier);
  }
  if (Contains(defender, "GO")) {
    puck_position = rolls.Next(2, "watched OutletStep of a goalie") == 1 ? "RD" : "LD";
  } else {
    const int forward = rolls.Next(3, "watched OutletStep of a defenceman");
    if (forward == 1) puck_position = "RF";
    if (forward == 2) puck_position = "CF";
    if (forward == 3) puck_position = "LF";
  }
  for (const std::string& record : line_list) {
    if (!Contains(record, puck_position)) continue;
    puck_carrier = record;
    Report(passer_name + " passes the puck to " + NameOf(puck_carrier));
  }
  passes_left = rolls.Next(4, "watched OutletStep, passes");
}

void WatchedMatch::ShotStep(RollTrace& rolls) {
  LoadIceLists();
  int defense = 0;
  defender_position = rolls.Next(2, "watched ShotStep, which defenceman") == 1 ? "RD" : "LD";
  for (const std::string& record : def_list) {
    if (!Contains(record, defender_position)) continue;
    defender = record;
    defense = StrictNumber(GetField(record, "Defense"));
  }
  const int shot = rolls.Next(100, "watched ShotStep, the shot");
  const int shooting = StrictNumber(GetField(puck_carrier, "Shooting"));
  if (shot > shooting) return;
  if (rolls.Next(110, "watched ShotStep, the defender") <= defense) {
    Report(NameOf(defender) + " steals the puck from " + NameOf(puck_carrier));
    TurnOver();
    return;
  }
  rolls.Next(100, "watched ShotStep, the roll for nothing");
  for (const std::string& record : def_list) {
    if (!Contains(record, "GO")) continue;
    defender = record;
    defense = StrictNumber(GetField(record, "Defense"));
  }
  if (rolls.Next(100, "watched ShotStep, the goalie's first") > defense) return;
  if (rolls.Next(105, "watched ShotStep, the goalie's second") <= defense) {
    Report(NameOf(defender) + " blocks a shot from " + NameOf(puck_carrier));
    TurnOver();
    return;
  }
  std::string& goals = puck_team == 1 ? goals_home : goals_visitor;
  goals = std::to_string(Short(LeadingNumber(goals)) + 1);
  passes_left = -2;
  Report(NameOf(puck_carrier) + " SCORES! Assist by: " + passer_name);
}

void WatchedMatch::TurnOver() {
  passer_name = NameOf(puck_carrier);
  puck_carrier = defender;
  puck_team = puck_team == 1 ? 2 : 1;
  LoadIceLists();
  passes_left = -1;
}

}  // namespace frostmark::reference
