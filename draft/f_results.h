#pragma once

#include "ui/controls.h"
#include "ui/screen.h"

namespace frostmark {

class Program;

// The close of a season: who came first and last in each league, who is champion, and the final
// standings. Its button goes on to the draft.
class FResults : public Screen {
 public:
  explicit FResults(Program& program);

  TabStrip XTab1{*this, "XTab1", {"Results", "Overall Standings"}};

  // Tab "Results".
  Picture Image1{XTab1.Page(0), "Image1"};
  Label Label4{XTab1.Page(0), "Label4", "Champion:"};
  Label Champ{XTab1.Page(0), "Champ", "Denver Skeletons"};
  Frame Frame1{XTab1.Page(0), "Frame1", "Rank A"};
  Label Label1{Frame1, "Label1", "Winner:"};
  Label Label5{Frame1, "Label5", "No one"};
  Label Label2{Frame1, "Label2", "Loser:"};
  Label Label6{Frame1, "Label6", "No one"};
  Frame Frame4{XTab1.Page(0), "Frame4", "Rank B"};
  Label Label18{Frame4, "Label18", "Winner:"};
  Label Label16{Frame4, "Label16", "No one"};
  Label Label17{Frame4, "Label17", "Loser:"};
  Label Label15{Frame4, "Label15", "No one"};
  Frame Frame2{XTab1.Page(0), "Frame2", "Rank C"};
  Label Label10{Frame2, "Label10", "Winner:"};
  Label Label8{Frame2, "Label8", "No one"};
  Label Label9{Frame2, "Label9", "Loser:"};
  Label Label7{Frame2, "Label7", "No one"};
  Frame Frame5{XTab1.Page(0), "Frame5", "Rank D"};
  Label Label22{Frame5, "Label22", "Winner:"};
  Label Label20{Frame5, "Label20", "No one"};
  Label Label21{Frame5, "Label21", "Loser:"};
  Label Label19{Frame5, "Label19", "No one"};
  Frame Frame3{XTab1.Page(0), "Frame3", "Rank E"};
  Label Label14{Frame3, "Label14", "Winner:"};
  Label Label12{Frame3, "Label12", "No one"};
  Label Label13{Frame3, "Label13", "Loser:"};
  Label Label11{Frame3, "Label11", "No one"};
  Frame Frame6{XTab1.Page(0), "Frame6", "Rank F"};
  Label Label26{Frame6, "Label26", "Winner:"};
  Label Label24{Frame6, "Label24", "No one"};
  Label Label25{Frame6, "Label25", "Loser:"};
  Label Label23{Frame6, "Label23", "No one"};
  Button Command1{XTab1.Page(0), "Command1", "Draft"};

  // Tab "Overall Standings".
  Frame Frame7{XTab1.Page(1), "Frame7", "Rank A"};
  ListBox List1{Frame7, "List1"};
  Frame Frame8{XTab1.Page(1), "Frame8", "Rank B"};
  ListBox List2{Frame8, "List2"};
  Frame Frame9{XTab1.Page(1), "Frame9", "Rank C"};
  ListBox List3{Frame9, "List3"};
  Frame Frame10{XTab1.Page(1), "Frame10", "Rank D"};
  ListBox List4{Frame10, "List4"};
  Frame Frame11{XTab1.Page(1), "Frame11", "Rank E"};
  ListBox List5{Frame11, "List5"};
  Frame Frame12{XTab1.Page(1), "Frame12", "Rank F"};
  ListBox List6{Frame12, "List6"};

  // draft/pool.cpp
  void ConnectDraftButton();
  // Rolls the pool of 120 players and runs the draft. Returns when the draft is over.
  void PressDraft();

 private:
  Program& program_;
};

}  // namespace frostmark
