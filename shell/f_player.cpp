#include "shell/f_player.h"

#include "program/program.h"

namespace frostmark {

FPlayer::FPlayer(Program& program)
    : Screen(program.screens, "FPlayer", "Player Stats", Border::kNone, OnClose::kHides) {
  Label5.OnClick = [this] { Hide(); };
  XTab1.OnMouseDown = [this] { Ordvik::DragWindow(*this); };
}

}  // namespace frostmark
