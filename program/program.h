#pragma once

#include <string>

#include "draft/f_draft.h"
#include "draft/f_results.h"
#include "draft/f_select_draft.h"
#include "match/f_start_game.h"
#include "match/game.h"
#include "match/game_simulation.h"
#include "records/hockey_naming.h"
#include "records/ordvik.h"
#include "records/under_way.h"
#include "shell/f_player.h"
#include "shell/franchise.h"
#include "shell/startup.h"
#include "ui/front_end.h"
#include "world/team_creator.h"

namespace frostmark {

// One running game: the modules and the screens. There is nothing global, so that a test can hold
// ten of them.
class Program {
 public:
  // FRONT_END and DICE outlive the program. APP_PATH is the program's folder.
  Program(FrontEnd& front_end, Dice& dice, std::string app_path);
  Program(const Program&) = delete;
  Program& operator=(const Program&) = delete;

  // Shows the start screen. Nothing else happens until the user acts, and no file is looked at.
  void Start();

  // program/cut_off_work.cpp
  // Finishes what a program that was cut off has left half done: the moves of a season's end, and a
  // save. False when that was not possible; what is on the disk is then not fit to be played.
  bool FinishCutOffWork();
  // Forgets such moves: their teams are gone.
  void ForgetCutOffMoves();

  FrontEnd& front_end;
  ScreenList screens;

  Ordvik ordvik;
  UnderWay under_way;
  HockeyNaming hockey_naming;
  GameSimulation game_simulation;

  Startup startup;
  TeamCreator team_creator;
  FStartGame f_start_game;
  Game game;
  Franchise franchise;
  FPlayer f_player;
  FResults f_results;
  FDraft f_draft;
  FSelectDraft f_select_draft;
};

}  // namespace frostmark
