#include "tests/replay/doings.h"

#include <memory>
#include <vector>

namespace frostmark::test {

void DoNew(Replay& replay) {
  replay.Do(
      "New",
      [](Program& program) {
        if (!program.startup.HighButton4.Visible()) program.startup.HighButton2.Click();
        program.startup.HighButton4.Click();
      },
      [](reference::ReferenceGame& rules) { rules.PressNew(); });
}

void DoGenerate(Replay& replay) {
  replay.Do(
      "Generate", [](Program& program) { program.startup.HighButton7.Click(); },
      [](reference::ReferenceGame& rules) { rules.PressGenerate(); });
}

void DoCreateTeam(Replay& replay, const std::string& city, const std::string& nickname) {
  replay.Do(
      "the panel's Begin",
      [city, nickname](Program& program) {
        program.startup.Text1.Type(city);
        program.startup.Text2.Type(nickname);
        program.startup.HighButton6.Click();
      },
      [city, nickname](reference::ReferenceGame& rules) {
        rules.PressBeginOfPanel(city, nickname);
      });
}

void DoBegin(Replay& replay) {
  replay.Do(
      "Begin", [](Program& program) { program.franchise.HighButton1.Click(); },
      [](reference::ReferenceGame& rules) { rules.PressBegin(); });
}

void DoSim(Replay& replay, const std::string& until) {
  replay.Answer(until);
  replay.Do(
      "Sim until " + until, [](Program& program) { program.franchise.Command2.Click(); },
      [](reference::ReferenceGame& rules) { rules.PressSim(); });
}

void DoSave(Replay& replay) {
  replay.Do(
      "Save", [](Program& program) { program.franchise.HighButton3.Click(); },
      [](reference::ReferenceGame& rules) { rules.SaveGame(); });
}

void DoLoad(Replay& replay) {
  replay.Do(
      "Load",
      [](Program& program) {
        program.startup.HighButton2.Click();
        program.startup.HighButton5.Click();
      },
      [](reference::ReferenceGame& rules) { rules.PressLoad(); });
}

void DoDraft(Replay& replay) {
  replay.Do(
      "Draft", [](Program& program) { program.f_results.Command1.Click(); },
      [](reference::ReferenceGame& rules) { rules.PressDraft(); });
}

void DoNewSeason(Replay& replay) {
  replay.Do(
      "New Season", [](Program& program) { program.f_draft.Command1.Click(); },
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

// Moves the last surplus player of each position down and fetches one where there is none.
std::vector<Move> Mend(Franchise& desk) {
  std::vector<Move> moves;
  for (const char* position : FDraft::kPositions) {
    while (CountAt(desk.MainList, position) > 1) {
      moves.push_back({true, LastAt(desk.MainList, position)});
      desk.MainRoster.Select(moves.back().selected);
      desk.Command3.Click();
    }
    if (CountAt(desk.MainList, position) == 1) continue;
    moves.push_back({false, LastAt(desk.TrainList, position)});
    desk.TrainingRoster.Select(moves.back().selected);
    desk.Command4.Click();
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
      "Testing", [](Program& program) { program.franchise.Command1.Click(); },
      [](reference::ReferenceGame& rules) { rules.PressTesting(); });
}

}  // namespace frostmark::test
