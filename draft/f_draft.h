#pragma once

#include <array>
#include <string>
#include <string_view>

#include "records/leagues.h"
#include "ui/controls.h"
#include "ui/screen.h"

namespace frostmark {

class Program;

// The yearly draft: every team in turn loses one player and takes another from the pool.
class FDraft : public Screen {
 public:
  explicit FDraft(Program& program);

  TabStrip XTab1{*this, "XTab1", {"Draft"}, Called{"Draft"}};
  Label Label1{*this, "Label1", "Current Rank:"};
  Label CurRank{*this, "CurRank", "Rank F", Called{"Current rank"}};
  Label Label2{*this, "Label2", "Current Team:"};
  Label CurTeam{*this, "CurTeam", "No one", Called{"Current team"}};
  Label Label3{*this, "Label3", "Draft Speed:", Start::kNeverShown};
  ScrollBar HScroll1{*this, "HScroll1", Start::kNeverShown};
  Label Label4{*this, "Label4",
               "Goalies                    Left Defenders                    Right Defenders",
               kColumnHeads};
  // The pool, best first: `shown` has the pool lines of `records`.
  ListPair List1{*this, "List1", Called{"Goalies"}};
  ListPair List2{*this, "List2", Called{"Left Defenders"}};
  ListPair List3{*this, "List3", Called{"Right Defenders"}};
  Label Label6{*this, "Label6",
               "Left Forwards                    Center Forwards                    Right Forwards",
               kColumnHeads};
  ListPair List4{*this, "List4", Called{"Left Forwards"}};
  ListPair List5{*this, "List5", Called{"Center Forwards"}};
  ListPair List6{*this, "List6", Called{"Right Forwards"}};
  Label Label5{*this, "Label5", "History:"};
  ListBox Events{*this, "Events",
                 Called{"History of the draft"}};  // this year's draft, oldest line first
  Button Command1{*this, "Command1", "New Season", Start::kDisabled};
  ListBox tempList{*this, "tempList", Start::kNeverShown};  // the roster of the team in turn
  FileListBox File1{*this, "File1", Start::kNeverShown};    // the teams of the league in turn

  // True while the user's team has its turn.
  bool AwaitingPick = false;
  // The record that a team has let go and that still has to go back into the pool.
  std::string ReleasedPlayer;

  // The pool in its fixed order, and the position of each pair.
  static constexpr PositionOrder kPositions = kDraftOrder;
  std::array<ListPair*, 6> Pool() { return {&List1, &List2, &List3, &List4, &List5, &List6}; }
  // The pair of POSITION, or nullptr for none of the six.
  ListPair* Pool(std::string_view position);
  // Opens or closes all six lists of the pool.
  void SetPoolEnabled(bool enabled);

  // draft/pool.cpp
  // Puts RECORD back into the pool and empties it.
  void AddDraftee(std::string& record);

  // draft/cpu_draft.cpp
  // Gives all 36 teams their turn, from "Rank A" down. Stops at the user's until the pick is made.
  void RunDraft();

  // draft/player_picks.cpp
  void PickFromPool(ListPair& list);
  void PressNewSeason();

 private:
  void StartPlayerTurn();

  Program& program_;
};

}  // namespace frostmark
