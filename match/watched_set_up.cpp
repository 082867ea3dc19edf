#include <array>

#include "program/program.h"
#include "records/leagues.h"
#include "records/lines/player_line.h"

namespace frostmark {
namespace {

// One side of the Game screen: its two lists and the chips of its players on the rink.
struct Side {
  ListBox& records;
  ListBox& lines;
  std::array<Label*, kPositionCount> chips;  // in the order of kRosterOrder
};

void SetUpLine(UiQueue& queue, const RecordList& roster, const Side& side) {
  const int count = roster.ListCount();
  for (int i = 0; i < count; ++i) {
    const std::string record = roster.List(i);
    if (FieldView(record, Field::kTraining) == "N") {
      const std::string position(FieldView(record, Field::kPosition));
      const std::string overall(FieldView(record, Field::kOverall));
      side.records.AddItem(record);
      side.lines.AddItem(FormatLineUpLine(record));
      for (std::size_t chip = 0; chip < kRosterOrder.size(); ++chip) {
        if (position == kRosterOrder[chip]) side.chips[chip]->SetCaption(overall);
      }
    }
    queue.Yield();
  }
}

}  // namespace

void HockeyNaming::SetUpMatch(const RecordList& list1, const std::string& name1,
                              const RecordList& list2, const std::string& name2) {
  Game& game = program_.game;
  game.RHome.SetCaption(name1);
  game.GHome.SetCaption(name1);
  game.RVisitor.SetCaption(name2);
  game.GVisitor.SetCaption(name2);
  game.Events.Clear();
  game.XTab1.SetFront(0);
  game.Goals(1).SetCaption("0");
  game.Goals(2).SetCaption("0");
  game.Line1.Clear();
  game.Line2.Clear();
  game.Line1Stats.Clear();
  game.Line2Stats.Clear();
  SetUpLine(queue_, list1,
            {game.Line1Stats,
             game.Line1,
             {&game.vGoalie, &game.vRDef, &game.vLDef, &game.vRFor, &game.vCenter, &game.vLFor}});
  SetUpLine(queue_, list2,
            {game.Line2Stats,
             game.Line2,
             {&game.hGoalie, &game.hRDef, &game.hLDef, &game.hRFor, &game.hCenter, &game.hLFor}});
  game.Period1.SetValue(0);
  game.Period2.SetValue(0);
  game.Period3.SetValue(0);
  game.Timer1.Disable();
  game.Timer2.Disable();
  game.Timer3.Disable();
  game.HighButton1.Show();
  game.HighButton2.Hide();
  game.Show();
}

}  // namespace frostmark
