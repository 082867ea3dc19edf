#include "tests/replay/doings.h"

#include <memory>
#include <vector>

namespace frostmark::replay {

void DoNew(Replay& replay) {
  replay.Do(
      "New",
      [](Program& program) {
        if (!program.startup.HighButton4.Visible()) Raise(program.startup.HighButton2.OnClick);
        Raise(program.startup.HighButton4.OnClick);
      },
      [](reference::ReferenceGame& rules) { rules.PressNew(); });
}

void DoGenerate(Replay& replay) {
  replay.Do(
      "Generate", [](Program& program) { Raise(program.startup.HighButton7.OnClick); },
      [](reference::ReferenceGame& rules) { rules.PressGenerate(); });
}

void DoCreateTeam(Replay& replay, const std::string& city, const std::string& nickname) {
  replay.Do(
      "the panel's Begin",
      [city, nickname](Program& program) {
        program.startup.Text1.Type(city);
        program.startup.Text2.Type(nickname);
        Raise(program.startup.HighButton6.OnClick);
      },
      [city, nickname](reference::ReferenceGame& rules) {
        rules.PressBeginOfPanel(city, nickname);
      });
}

void DoBegin(Replay& replay) {
  replay.Do(
      "Begin", [](Program& program) { Raise(program.franchise.HighButton1.OnClick); },
      [](reference::ReferenceGame& rules) { rules.PressBegin(); });
}

void DoSim(Replay& replay, const std::string& until) {
  replay.Answer(until);
  replay.Do(
      "Sim until " + until, [](Program& program) { Raise(program.franchise.Command2.OnClick); },
      [](reference::ReferenceGame& rules) { rules.PressSim(); });
}

void DoSave(Replay& replay) {
  replay.Do(
      "Save", [](Program& program) { Raise(program.franchise.HighButton3.OnClick); },
      [](reference::ReferenceGame& rules) { rules.SaveGame(); });
}

void DoLoad(Replay& replay) {
  replay.Do(
      "Load",
      [](Program& program) {
        Raise(program.startup.HighButton2.OnClick);
        Raise(program.startup.HighButton5.OnClick);
      },
      [](reference::ReferenceGame& rules) { rules.PressLoad(); });
}

void DoDraft(Replay& replay) {
  replay.Do(
      "Draft", [](Program& program) { Raise(program.f_results.Command1.OnClick); },
      [](reference::ReferenceGame& rules) { rules.PressDraft(); });
}

void DoNewSeason(Replay& replay) {
  replay.Do(
      "New Season", [](Program& program) { Raise(program.f_draft.Command1.OnClick); },
      [](reference::ReferenceGame& rules) { rules.PressNewSeason(); });
}

namespace {

struct Move {
  bool to_training;
  int selected;
};

int CountAt(const ListBox& list, const std::string& position) {
  int count = 0;
  for (int i = 0; i < list.ListCount(); ++i) {
    if (HockeyNaming::GetField(list.List(i), "Position") == position) ++count;
  }
  return count;
}

int LastAt(const ListBox& list, const std::string& position) {
  int last = -1;
  for (int i = 0; i < list.ListCount(); ++i) {
    if (HockeyNaming::GetField(list.List(i), "Position") == position) last = i;
  }
  return last;
}

// Moves the last surplus man of each position down and fetches one where there is none.
std::vector<Move> Mend(Franchise& desk) {
  std::vector<Move> moves;
  for (const char* position : FDraft::kPositions) {
    while (CountAt(desk.MainList, position) > 1) {
      moves.push_back({true, LastAt(desk.MainList, position)});
      desk.MainRoster.Select(moves.back().selected);
      Raise(desk.Command3.OnClick);
    }
    if (CountAt(desk.MainList, position) == 1) continue;
    moves.push_back({false, LastAt(desk.TrainList, position)});
    desk.TrainingRoster.Select(moves.back().selected);
    Raise(desk.Command4.OnClick);
  }
  return moves;
}

}  // namespace

void DoMendLineUp(Replay& replay) {
  const auto moves = std::make_shared<std::vector<Move>>();
  replay.Do(
      "the mending of the line-up", [moves](Program& program) { *moves = Mend(program.franchise); },
      [moves](reference::ReferenceGame& rules) {
        for (const Move& move : *moves) {
          if (move.to_training) rules.PressToTraining(move.selected);
          if (!move.to_training) rules.PressToLeadLine(move.selected);
        }
      });
}

void DoTesting(Replay& replay) {
  replay.Do(
      "Testing", [](Program& program) { Raise(program.franchise.Command1.OnClick); },
      [](reference::ReferenceGame& rules) { rules.PressTesting(); });
}

}  // namespace frostmark::replay
