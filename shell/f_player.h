#pragma once

#include "ui/controls.h"
#include "ui/screen.h"

namespace frostmark {

class Program;

// A small popup that shows one player of the user's team.
class FPlayer : public Screen {
 public:
  explicit FPlayer(Program& program);

  TabStrip XTab1{*this, "XTab1", {"Player Stats"}};
  Label Label10{*this, "Label10"};  // the name
  Label Label7{*this, "Label7", "Overall:"};
  Label Label9{*this, "Label9"};
  Label Label11{*this, "Label11", "Shooting:"};
  Label Label12{*this, "Label12"};
  Label Label14{*this, "Label14", "Passing:"};
  Label Label15{*this, "Label15"};
  Label Label8{*this, "Label8", "Defense:"};
  Label Label6{*this, "Label6"};
  Label Label4{*this, "Label4", "Agility:"};
  Label Label3{*this, "Label3"};
  Label Label2{*this, "Label2", "Age:"};
  Label Label1{*this, "Label1"};
  Label Label5{*this, "Label5", "\u00D7"};  // a cross, hides the popup

  // roster.cpp
  void ConnectPlayerPopup();
};

}  // namespace frostmark
