#pragma once

#include <array>
#include <cstddef>

#include "ui/controls.h"
#include "ui/screen.h"

namespace frostmark {

class Program;

// The close of a season: who came first and last in each league, who is champion, and the final
// standings. Its button goes on to the draft.
class FResults : public Screen {
 public:
  explicit FResults(Program& program);

  TabStrip XTab1{*this, "XTab1", {"Results", "Overall Standings"}, Called{"Results"}};

  // Tab "Results".
  Picture Image1{XTab1.Page(0), "Image1", Called{"The cup"}};
  Label Label4{XTab1.Page(0), "Label4", "Champion:"};
  Label Champ{XTab1.Page(0), "Champ", "Denver Skeletons", Called{"Champion"}};
  Frame Frame1{XTab1.Page(0), "Frame1", "Rank A"};
  Label Label1{Frame1, "Label1", "Winner:"};
  Label Label5{Frame1, "Label5", "No one", Called{"Rank A winner"}};
  Label Label2{Frame1, "Label2", "Loser:"};
  Label Label6{Frame1, "Label6", "No one", Called{"Rank A loser"}};
  Frame Frame4{XTab1.Page(0), "Frame4", "Rank B"};
  Label Label18{Frame4, "Label18", "Winner:"};
  Label Label16{Frame4, "Label16", "No one", Called{"Rank B winner"}};
  Label Label17{Frame4, "Label17", "Loser:"};
  Label Label15{Frame4, "Label15", "No one", Called{"Rank B loser"}};
  Frame Frame2{XTab1.Page(0), "Frame2", "Rank C"};
  Label Label10{Frame2, "Label10", "Winner:"};
  Label Label8{Frame2, "Label8", "No one", Called{"Rank C winner"}};
  Label Label9{Frame2, "Label9", "Loser:"};
  Label Label7{Frame2, "Label7", "No one", Called{"Rank C loser"}};
  Frame Frame5{XTab1.Page(0), "Frame5", "Rank D"};
  Label Label22{Frame5, "Label22", "Winner:"};
  Label Label20{Frame5, "Label20", "No one", Called{"Rank D winner"}};
  Label Label21{Frame5, "Label21", "Loser:"};
  Label Label19{Frame5, "Label19", "No one", Called{"Rank D loser"}};
  Frame Frame3{XTab1.Page(0), "Frame3", "Rank E"};
  Label Label14{Frame3, "Label14", "Winner:"};
  Label Label12{Frame3, "Label12", "No one", Called{"Rank E winner"}};
  Label Label13{Frame3, "Label13", "Loser:"};
  Label Label11{Frame3, "Label11", "No one", Called{"Rank E loser"}};
  Frame Frame6{XTab1.Page(0), "Frame6", "Rank F"};
  Label Label26{Frame6, "Label26", "Winner:"};
  Label Label24{Frame6, "Label24", "No one", Called{"Rank F winner"}};
  Label Label25{Frame6, "Label25", "Loser:"};
  Label Label23{Frame6, "Label23", "No one", Called{"Rank F loser"}};
  Button Command1{XTab1.Page(0), "Command1", "Draft"};

  // Tab "Overall Standings".
  Frame Frame7{XTab1.Page(1), "Frame7", "Rank A"};
  ListBox List1{Frame7, "List1", Called{"Final standings of Rank A", "Standings:"}};
  Frame Frame8{XTab1.Page(1), "Frame8", "Rank B"};
  ListBox List2{Frame8, "List2", Called{"Final standings of Rank B", "Standings:"}};
  Frame Frame9{XTab1.Page(1), "Frame9", "Rank C"};
  ListBox List3{Frame9, "List3", Called{"Final standings of Rank C", "Standings:"}};
  Frame Frame10{XTab1.Page(1), "Frame10", "Rank D"};
  ListBox List4{Frame10, "List4", Called{"Final standings of Rank D", "Standings:"}};
  Frame Frame11{XTab1.Page(1), "Frame11", "Rank E"};
  ListBox List5{Frame11, "List5", Called{"Final standings of Rank E", "Standings:"}};
  Frame Frame12{XTab1.Page(1), "Frame12", "Rank F"};
  ListBox List6{Frame12, "List6", Called{"Final standings of Rank F", "Standings:"}};

  // The first and the last of LEAGUE, which counts from 0, "Rank F", to 5, "Rank A".
  Label& Winner(std::size_t league) {
    const std::array<Label*, 6> winners = {&Label24, &Label12, &Label20,
                                           &Label8,  &Label16, &Label5};
    return *winners.at(league);
  }
  Label& Loser(std::size_t league) {
    const std::array<Label*, 6> losers = {&Label23, &Label11, &Label19, &Label7, &Label15, &Label6};
    return *losers.at(league);
  }

  // For each border between two leagues, from 0 between "Rank F" and "Rank E": whether the first
  // below it and the last above it have changed places.
  std::array<bool, 5> crossed{};

  // draft/pool.cpp
  // Rolls the pool of 120 players and runs the draft. Returns when the draft is over.
  void PressDraft();

 private:
  Program& program_;
};

}  // namespace frostmark
