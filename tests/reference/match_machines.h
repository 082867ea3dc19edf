#pragma once

#include <string>

#include "tests/reference/roll_trace.h"
#include "tests/reference/text_records.h"

namespace frostmark::reference {

// The game that nobody sees. Its variables live on from game to game.
class UnwatchedMatch {
 public:
  int passes_left = 0;
  std::string puck_carrier;
  std::string passer_name;
  std::string puck_position;
  int puck_team = 0;
  std::string defender;
  std::string defender_position;
  int goals_team1 = 0;
  int goals_team2 = 0;
  Lines line1_stats;
  Lines line2_stats;
  Lines line_list;
  Lines def_list;

  void LoadGameLines(const Lines& list1, const Lines& list2);
  // The goals stay in goals_team1 and goals_team2.
  void SimulateGame(RollTrace& rolls);

 private:
  void LoadIceLists();
  void PlayStep(RollTrace& rolls);
  void OutletStep(RollTrace& rolls);
  void ShotStep(RollTrace& rolls);
  void FaceOff(RollTrace& rolls);
  void TurnOver();
};

// The game on the rink screen: a machine of its own, which tells what happens. Its variables live
// on from game to game, apart from those of the other machine.
class WatchedMatch {
 public:
  int passes_left = 0;
  std::string puck_carrier;
  std::string passer_name;
  std::string puck_position;
  int puck_team = 0;
  std::string defender;
  std::string defender_position;
  std::string goals_home = "0";  // captions: the score is text here
  std::string goals_visitor = "0";
  Lines line1_stats;
  Lines line2_stats;
  Lines line_list;
  Lines def_list;
  Lines events;  // newest on top, the ends of periods at the bottom

  void PlayStep(RollTrace& rolls);
  void FaceOff(RollTrace& rolls);
  void Report(const std::string& line);

 private:
  void LoadIceLists();
  void OutletStep(RollTrace& rolls);
  void ShotStep(RollTrace& rolls);
  void TurnOver();
};

}  // namespace frostmark::reference
