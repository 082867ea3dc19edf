#pragma once

#include "ui/controls.h"
#include "ui/screen.h"

namespace frostmark {

class Program;

// The choice of two teams for a single game, which changes nothing in the franchise.
class FStartGame : public Screen {
 public:
  explicit FStartGame(Program& program);

  Label Label1{*this, "Label1", "Choose your team...                    Choose your opponent....",
               kColumnHeads};
  ListBox List3{*this, "List3", Called{"Your league"}};
  ListBox List4{*this, "List4", Called{"Your opponent's league"}};
  FileListBox File1{*this, "File1", Called{"Your team"}};
  FileListBox File2{*this, "File2", Called{"Your opponent"}};
  ListBox List1{*this, "List1", Start::kNeverShown};  // the roster of the team chosen in File1
  ListBox List2{*this, "List2", Start::kNeverShown};  // of the one chosen in File2
  Button HighButton1{*this, "HighButton1", "Begin"};
  Label Label2{*this, "Label2", "x", Called{"Back to the start screen"}};

 private:
  Program& program_;
};

}  // namespace frostmark
