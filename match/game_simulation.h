#pragma once

#include <array>
#include <string>

#include "records/numbers.h"
#include "records/record_list.h"

namespace frostmark {

class Program;

// The module that plays a game unseen: one face-off and 600 steps of a puck that passes between the
// six lead players of each team. It works on the lists of the Franchise screen. Its variables
// outlive a game.
class GameSimulation {
 public:
  explicit GameSimulation(Program& program);

  Int16 PassesLeft;  // -2 face-off due, -1 outlet pass due, 0 shot due, above 0 passes to come
  std::string PuckCarrier;       // the record of the player with the puck
  std::string PasserName;        // who last gave up the puck
  std::string PuckPosition;      // the position the puck was last sent to
  Int16 PuckTeam;                // 1 or 2, 0 before the first face-off of a run
  std::string Defender;          // the record of the back whom the last shot met
  std::string DefenderPosition;  // "RD" or "LD"
  Int16 GoalsTeam1;
  Int16 GoalsTeam2;

  // match/unwatched.cpp
  // Copies the players of LIST1 and LIST2 with Training "N" to Line1Stats and Line2Stats.
  void LoadGameLines(const RecordList& list1, const RecordList& list2);
  // Plays the game of the two lines and leaves its goals in the Franchise screen's scores. Throws
  // RuntimeError when a Shooting or Defense that it needs is not a number.
  void SimulateGame();

 private:
  void LoadIceLists();
  void PlayStep();
  void OutletStep();
  void ShotStep();
  void FaceOff();
  void TurnOver();

  Program& program_;
  // The memory of the last face-off's two centers, so that the next one allocates none.
  std::array<std::string, 2> spare_centers_;
};

}  // namespace frostmark
