#pragma once

#include "ui/controls.h"
#include "ui/screen.h"

namespace frostmark {

class Program;

// Where the user chooses which player to let go in the draft. There is no way on but to let one go.
class FSelectDraft : public Screen {
 public:
  explicit FSelectDraft(Program& program);

  TabStrip XTab1{*this, "XTab1", {"Select Player"}, Called{"Select Player"}};
  ListBox List1{*this, "List1", Called{"Who has to go?"}};  // display lines
  ListBox List2{*this, "List2", Start::kNeverShown};        // the records behind them

  // draft/player_picks.cpp
  void ReleaseSelected();

 private:
  Program& program_;
};

}  // namespace frostmark
