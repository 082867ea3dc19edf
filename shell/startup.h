#pragma once

#include "ui/controls.h"
#include "ui/screen.h"

namespace frostmark {

class Program;

// The first screen and the way into both game modes. It also carries the panel on which the user
// creates a team for a new franchise.
class Startup : public Screen {
 public:
  explicit Startup(Program& program);

  Button HighButton1{*this, "HighButton1", "Single Game"};
  Button HighButton2{*this, "HighButton2", "Franchise"};
  Button HighButton3{*this, "HighButton3", "Exit"};
  Button HighButton4{*this, "HighButton4", "New", Start::kHidden};
  Button HighButton5{*this, "HighButton5", "Load", Start::kHidden};
  Label Label1{*this, "Label1", "https://frostmark.example", Called{"Visit the web page"}};
  // A hot spot without a caption.
  Label Label2{*this, "Label2", "", Called{"Team creator (the top right corner)"}};
  FileListBox File1{*this, "File1", Start::kNeverShown};
  ListBox List3{*this, "List3", Start::kNeverShown};  // cities still to be given in a league build
  ListBox List4{*this, "List4", Start::kNeverShown};  // nicknames likewise

  Frame Frame1{*this, "Frame1", "Create a team", Start::kHidden};
  Label Label3{Frame1, "Label3", "\u00D7", Called{"Close the panel"}};
  Label Label4{Frame1, "Label4", "City:"};
  TextBox Text1{Frame1, "Text1", "Montreal", Called{"City"}, 12};
  Label Label5{Frame1, "Label5", "Name:"};
  TextBox Text2{Frame1, "Text2", "Breeze", Called{"Name"}, 16};
  Label Label6{Frame1, "Label6", "Lead line:"};
  ListBox List1{Frame1, "List1", Called{"Lead line"}};
  Label Label7{Frame1, "Label7", "Training line:"};
  ListBox List2{Frame1, "List2", Called{"Training line"}};
  Label Label11{Frame1, "Label11", "Offense      Defense        Overall", kColumnHeads};
  Label Label10{Frame1, "Label10", "0", Called{"Offense", "Offense"}};
  Label Label9{Frame1, "Label9", "0", Called{"Defense", "Defense"}};
  Label Label8{Frame1, "Label8", "0", Called{"Overall", "Overall"}};
  Button HighButton7{Frame1, "HighButton7", "Generate"};
  Button HighButton6{Frame1, "HighButton6", "Begin"};
  // Another hot spot.
  Label Label12{Frame1, "Label12", "",
                Called{"Roll for a wanted overall (the left edge of the panel)"}};

  // shell/save_and_resume.cpp
  // Resumes the saved franchise. Does nothing when there is none.
  void PressLoad();
  // Whether there is a saved franchise, by a short look at the disk: PressLoad looks closer.
  bool HasSavedGame() const;

  // shell/new_franchise.cpp
  void PressNew();
  void PressGenerate();
  void PressBegin();
  // Rolls teams until one has the Overall that the user asks for; without end if none can have it.
  void ClickWantedOverall();

  // world/league_build.cpp
  // Makes a new world: deletes all team files and writes 35 new ones, five in "Rank F" and six in
  // each other league, each league's teams within a band of strength. Settings stay as they are.
  void BuildLeague();

 private:
  Program& program_;
};

}  // namespace frostmark
