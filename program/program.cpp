#include "program/program.h"

#include <utility>

namespace frostmark {

Program::Program(FrontEnd& front_end_of_user, Dice& dice, std::string app_path)
    : front_end(front_end_of_user),
      ordvik(front_end_of_user, dice, std::move(app_path)),
      under_way(ordvik),
      hockey_naming(*this, front_end_of_user, ordvik),
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
  front_end.Open(screens);
}

void Program::Start() { startup.Show(); }

}  // namespace frostmark
