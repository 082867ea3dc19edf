#pragma once

#include <string>

#include "records/lines/play_line.h"
#include "records/numbers.h"
#include "ui/controls.h"
#include "ui/screen.h"

namespace frostmark {

class Program;

// One game in front of the user: three periods of 200 steps on timers, the rink and the
// play-by-play. It is a match machine of its own beside GameSimulation, on the screen's own lists,
// and differs from it in many small ways that are all wanted.
class Game : public Screen {
 public:
  explicit Game(Program& program);

  static constexpr int kStepsOfPeriod = 200;
  static constexpr int kStepMs = 100;

  TabStrip XTab1{*this, "XTab1", {"Roster", "Game"}, Called{"Game"}};

  // Tab "Roster".
  Frame Frame1{XTab1.Page(0), "Frame1", "Home"};
  Label RHome{Frame1, "RHome", "", Called{"Home team"}};
  ListBox Line1{Frame1, "Line1", Called{"Lead line of the home team", "Lead line:"}};
  Frame Frame3{XTab1.Page(0), "Frame3", "Visitor"};
  Label RVisitor{Frame3, "RVisitor", "", Called{"Visiting team"}};
  ListBox Line2{Frame3, "Line2", Called{"Lead line of the visitor", "Lead line:"}};
  ListBox Line1Stats{*this, "Line1Stats", Start::kNeverShown};  // records of the lead lines
  ListBox Line2Stats{*this, "Line2Stats", Start::kNeverShown};
  ListBox LineList{*this, "LineList", Start::kNeverShown};  // the line with the puck, reversed
  ListBox DefList{*this, "DefList", Start::kNeverShown};    // the other line, reversed

  // Tab "Game".
  Label Label1{XTab1.Page(1), "Label1", "Home:"};
  Label GHome{XTab1.Page(1), "GHome", "", Called{"Home team"}};
  Label Label3{XTab1.Page(1), "Label3", "0", Called{"Goals of the home team", "Goals"}};
  Label Label2{XTab1.Page(1), "Label2", "Visitor:"};
  Label GVisitor{XTab1.Page(1), "GVisitor", "", Called{"Visiting team"}};
  Label Label4{XTab1.Page(1), "Label4", "0", Called{"Goals of the visitor", "Goals"}};
  ListBox Events{XTab1.Page(1), "Events", Called{"Play-by-play"}};  // newest on top
  // The steps played in each.
  ProgressBar Period1{XTab1.Page(1), "Period1", kStepsOfPeriod, Called{"Period 1", "Period 1"}};
  ProgressBar Period2{XTab1.Page(1), "Period2", kStepsOfPeriod, Called{"Period 2", "Period 2"}};
  ProgressBar Period3{XTab1.Page(1), "Period3", kStepsOfPeriod, Called{"Period 3", "Period 3"}};
  Timer Timer1{*this, "Timer1", kStepMs};
  Timer Timer2{*this, "Timer2", kStepMs};
  Timer Timer3{*this, "Timer3", kStepMs};
  Button HighButton1{XTab1.Page(1), "HighButton1", "Start"};
  Button HighButton2{XTab1.Page(1), "HighButton2", "Close", Start::kHidden};
  Label Label5{XTab1.Page(1), "Label5", "x", Called{"Abandon the game"}};
  Picture Picture1{XTab1.Page(1), "Picture1", Called{"The rink"}};
  // The Overall of the home team's lead players, on the left half of the rink.
  Label vGoalie{XTab1.Page(1), "vGoalie", "00", Called{"Overall of the home goalie", "Home GO"}};
  Label vRDef{XTab1.Page(1), "vRDef", "00", Called{"Overall of the home right defender", "RD"}};
  Label vLDef{XTab1.Page(1), "vLDef", "00", Called{"Overall of the home left defender", "LD"}};
  Label vRFor{XTab1.Page(1), "vRFor", "00", Called{"Overall of the home right forward", "RF"}};
  Label vCenter{XTab1.Page(1), "vCenter", "00", Called{"Overall of the home center", "CF"}};
  Label vLFor{XTab1.Page(1), "vLFor", "00", Called{"Overall of the home left forward", "LF"}};
  // Of the visitor's, on the right half.
  Label hGoalie{XTab1.Page(1), "hGoalie", "00",
                Called{"Overall of the visiting goalie", "Visitor GO"}};
  Label hRDef{XTab1.Page(1), "hRDef", "00", Called{"Overall of the visiting right defender", "RD"}};
  Label hLDef{XTab1.Page(1), "hLDef", "00", Called{"Overall of the visiting left defender", "LD"}};
  Label hRFor{XTab1.Page(1), "hRFor", "00", Called{"Overall of the visiting right forward", "RF"}};
  Label hCenter{XTab1.Page(1), "hCenter", "00", Called{"Overall of the visiting center", "CF"}};
  Label hLFor{XTab1.Page(1), "hLFor", "00", Called{"Overall of the visiting left forward", "LF"}};
  CheckBox CPUPuck{XTab1.Page(1), "CPUPuck", "CPUPuck", Start::kNeverShown};  // nothing reads it

  // The state of the match machine. It outlives a game.
  Int16 PassesLeft;  // -2 face-off due, -1 outlet pass due, 0 shot due, above 0 passes to come
  std::string PuckCarrier;       // the record of the player with the puck
  std::string PasserName;        // who last gave up the puck: the assist of a goal
  std::string PuckPosition;      // the position the puck was last sent to
  Int16 PuckTeam;                // 1 home, 2 visitor, 0 before the first face-off of a run
  std::string Defender;          // the record of the back whom the last shot met
  std::string DefenderPosition;  // "RD" or "LD"

  // True while a franchise game waits for this screen.
  bool FranchiseMatch = false;

  // The goals of TEAM, 1 for home and 2 for the visitor: there is no other score.
  Label& Goals(int team) { return team == 1 ? Label3 : Label4; }
  const Label& Goals(int team) const { return team == 1 ? Label3 : Label4; }

  // match/watched_periods.cpp
  void PressStart();
  void TickPeriod1();
  void TickPeriod2();
  void TickPeriod3();
  void PressClose();
  void Abandon();

 private:
  // match/watched_periods.cpp
  void AnnounceResult();

  // match/watched.cpp
  void LoadIceLists();
  void PlayStep();
  void OutletStep();
  void ShotStep();
  void FaceOff();
  void TurnOver(Play how);

  Program& program_;
};

}  // namespace frostmark
