#pragma once

#include "ui/controls.h"
#include "ui/screen.h"

namespace frostmark {

class Program;

// A small tool screen that rolls a roster of eleven. Hidden, it does so for the league build and
// for the create-a-team panel, and its name lists serve the draft.
class TeamCreator : public Screen {
 public:
  explicit TeamCreator(Program& program);

  Label Label1{*this, "Label1", "City:"};
  TextBox Text1{*this, "Text1", "Denver", Called{"City"}};
  Label Label2{*this, "Label2", "Name:"};
  TextBox Text2{*this, "Text2", "Skeletons", Called{"Name"}};
  Label Label3{*this, "Label3", "Position:"};
  ListBox List4{*this, "List4", Called{"Positions"}};  // codes in roster order
  ListBox List1{*this, "List1", Called{"Roster"}};     // the one rolled last
  // Most common first. Text draws neither: they are long and never change.
  ListBox List2{*this, "List2", Called{"Given names", ""}};
  ListBox List3{*this, "List3", Called{"Family names", ""}};
  ComboBox Combo1{*this,
                  "Combo1",
                  "Select Rank",
                  {"Rank F", "Rank E", "Rank D", "Rank C", "Rank B", "Rank A"},
                  Called{"Rank", "Rank"}};
  Button Command2{*this, "Command2", "Generate"};
  Button Command1{*this, "Command1", "Save"};
  Label Label4{*this, "Label4", "Offense                      Defense                   Overall",
               kColumnHeads};
  Label Label5{*this, "Label5", "0", Called{"Offense", "Offense"}};
  Label Label6{*this, "Label6", "0", Called{"Defense", "Defense"}};
  Label Label7{*this, "Label7", "0", Called{"Overall", "Overall"}};

  // world/team_creator.cpp
  // Rolls a roster into List1: six lead players, then five training players, and rates it.
  void GenTeam();
  // Writes List1 relative to the current folder, then empties the form.
  void PressSave();

 private:
  Program& program_;
};

}  // namespace frostmark
