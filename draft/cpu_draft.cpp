#include <array>

#include "draft/retirement.h"
#include "program/program.h"
#include "records/leagues.h"
#include "records/lines/history_line.h"
#include "records/runtime_error.h"

namespace frostmark {
namespace {

// A roster's positions: a goalie, and a player on either line at each other one.
constexpr int kGoalies = 1;
constexpr int kSkatersOfPosition = 2;
constexpr int kPlayersOfTeam = 11;
// The weakest of them, at the end of the sorted roster, are the ones that may be let go.
constexpr int kMayGo = 3;
constexpr int kLastSafe = kPlayersOfTeam - kMayGo - 1;
constexpr int kGrownUp = 25;         // years; whom a team lets go first
constexpr const char* kPause = "1";  // second, before and between the steps of a turn

// Of the three weakest the first who is grown up has to go, the weakest before the others; if all
// three are younger, the weakest. The team's file keeps the order of this sort. Returns the
// leaver's Training.
std::string ReleasePlayer(Program& program) {
  FDraft& draft = program.f_draft;
  ListBox& roster = draft.tempList;
  HockeyNaming::SortByOverall(roster);
  int leaver = roster.ListCount();
  double age = 0;
  do {
    --leaver;
    program.front_end.Yield();
    if (leaver < 0) throw RuntimeError("Invalid list index: " + std::to_string(leaver));
    age = LenientNumber(FieldView(roster.List(leaver), Field::kAge));
  } while (leaver != kLastSafe && age < kGrownUp);
  if (leaver == kLastSafe) leaver = roster.ListCount() - 1;
  draft.ReleasedPlayer = roster.List(leaver);
  draft.Events.AddItem(FormatRelease(draft.ReleasedPlayer, draft.CurTeam.Caption()));
  roster.RemoveItem(leaver);
  return HockeyNaming::GetField(draft.ReleasedPlayer, "Training");
}

// Takes one player of a computer's team out of tempList and returns the leaver's Training.
std::string PartWithPlayer(Program& program) {
  FDraft& draft = program.f_draft;
  const int retiring = RollRetirement(program.ordvik, program.front_end, draft.tempList);
  if (retiring < 0) return ReleasePlayer(program);
  const std::string record = draft.tempList.List(retiring);
  draft.Events.AddItem(FormatRetirement(record, draft.CurTeam.Caption()));
  draft.tempList.RemoveItem(retiring);
  return HockeyNaming::GetField(record, "Training");
}

// A position that is short gets the best of the pool, once, however short it is. The replacement
// takes over the line of the player who left.
void Refill(Program& program, std::string_view training) {
  FDraft& draft = program.f_draft;
  std::array<int, kPositionCount> players{};
  const int count = draft.tempList.ListCount();
  for (int i = 0; i < count; ++i) {
    for (std::size_t p = 0; p < kDraftOrder.size(); ++p) {
      if (FieldView(draft.tempList.List(i), Field::kPosition) == kDraftOrder[p]) ++players[p];
    }
    program.front_end.Yield();
  }
  for (std::size_t p = 0; p < kDraftOrder.size(); ++p) {
    const bool goalie = kDraftOrder[p] == std::string_view("GO");
    if (players[p] >= (goalie ? kGoalies : kSkatersOfPosition)) continue;
    ListPair& list = *draft.Pool()[p];
    const std::string record = list.records.List(0);
    draft.tempList.AddItem(program.hockey_naming.SetField(record, "Training", training));
    draft.Events.AddItem(FormatPick(record, draft.CurTeam.Caption()));
    list.records.RemoveItem(0);
    list.shown.RemoveItem(0);
  }
}

void TakeComputersTurn(Program& program) {
  const std::string training = PartWithPlayer(program);
  program.ordvik.WaitSeconds(kPause);
  Refill(program, training);
}

}  // namespace

void FDraft::RunDraft() {
  Ordvik& ordvik = program_.ordvik;
  Command1.Disable();
  AwaitingPick = false;
  for (auto rank = kRanks.rbegin(); rank != kRanks.rend(); ++rank) {
    CurRank.SetCaption(*rank);
    File1.SetPath(ordvik.RankFolder(*rank));
    int team = File1.ListCount() - 1;
    do {
      tempList.Clear();
      ordvik.WaitSeconds(kPause);
      CurTeam.SetCaption(File1.List(team));
      const std::string path = File1.Path() + "/" + File1.List(team);
      ordvik.LoadPlayerFile(tempList, path);
      if (CurTeam.Caption() == program_.franchise.TeamName.Caption()) {
        AwaitingPick = true;
        StartPlayerTurn();
        while (AwaitingPick) program_.front_end.Wait();
      } else {
        TakeComputersTurn(program_);
      }
      // Only now does the player let go enter the pool, so that no team takes its own back.
      if (!ReleasedPlayer.empty()) AddDraftee(ReleasedPlayer);
      ordvik.SaveListFile(tempList, path);
      ordvik.WaitSeconds(kPause);
      --team;
      program_.front_end.Yield();
    } while (team != -1);
  }
  Command1.Enable();
}

}  // namespace frostmark
