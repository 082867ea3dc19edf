#include "program/program.h"

#include <utility>

namespace frostmark {

Program::Program(Desktop& desktop_of_user, Dice& dice, std::string app_path)
    : desktop(desktop_of_user),
      ordvik(*this, desktop_of_user, dice, std::move(app_path)),
      under_way(ordvik),
      hockey_naming(*this, desktop_of_user, ordvik),
      game_simulation(*this),
      startup(*this),
      team_creator(*this),
      f_start_game(*this),
      game(*this),
      franchise(*this),
      f_player(*this),
      f_results(*this),
      f_draft(*this),
      f_select_draft(*this) {
  startup.ConnectStartScreen();
  startup.ConnectLoad();
  startup.ConnectNewFranchise();
  team_creator.ConnectTeamCreator();
  f_start_game.ConnectSingleGame();
  game.ConnectPeriods();
  franchise.ConnectRoster();
  franchise.ConnectSaveAndClose();
  franchise.ConnectWeekLoop();
  franchise.ConnectSimRun();
  f_player.ConnectPlayerPopup();
  f_results.ConnectDraftButton();
  f_draft.ConnectPicks();
  f_select_draft.ConnectRelease();
  desktop.Open(screens);
}

void Program::Start() { startup.Show(); }

}  // namespace frostmark
