#pragma once

#include "ui/controls.h"
#include "ui/screen.h"

namespace frostmark {

class Program;

// A small popup that shows one player of the user's team.
class FPlayer : public Screen {
 public:
  explicit FPlayer(Program& program);

  TabStrip XTab1{*this, "XTab1", {"Player Stats"}, Called{"Player"}};
  Label Label10{*this, "Label10", "", Called{"Name"}};
  Label Label7{*this, "Label7", "Overall:"};
  Label Label9{*this, "Label9", "", Called{"Overall"}};
  Label Label11{*this, "Label11", "Shooting:"};
  Label Label12{*this, "Label12", "", Called{"Shooting"}};
  Label Label14{*this, "Label14", "Passing:"};
  Label Label15{*this, "Label15", "", Called{"Passing"}};
  Label Label8{*this, "Label8", "Defense:"};
  Label Label6{*this, "Label6", "", Called{"Defense"}};
  Label Label4{*this, "Label4", "Agility:"};
  Label Label3{*this, "Label3", "", Called{"Agility"}};
  Label Label2{*this, "Label2", "Age:"};
  Label Label1{*this, "Label1", "", Called{"Age"}};
  Label Label5{*this, "Label5", "\u00D7", Called{"Close the player"}};
};

}  // namespace frostmark
