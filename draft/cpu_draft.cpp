#include <algorithm>
#include <array>
#include <chrono>
#include <cmath>

#include "program/program.h"
#include "records/leagues.h"
#include "records/runtime_error.h"

namespace frostmark {

void Ordvik::WaitSeconds(const std::string& seconds) {
  // Nothing waits longer than a day: by then the clock has been round.
  constexpr double kDay = 24 * 60 * 60;
  const std::chrono::duration<double> wanted(std::clamp(LenientNumber(seconds), 0.0, kDay));
  auto length = std::chrono::duration_cast<std::chrono::microseconds>(wanted);
  const auto start = program_.desktop.SinceMidnight();
  std::chrono::microseconds passed{0};
  while (passed < length) {
    queue_.WaitFor(length - passed);
    passed = program_.desktop.SinceMidnight() - start;
    // The clock begins anew at midnight and is not corrected for it: the difference is then
    // negative, and the wait lasts until the time of its start has come round again.
    if (passed.count() < 0) length = std::chrono::microseconds(0);
  }
}

void FDraft::RunDraft() {
  Command1.Disable();
  AwaitingPick = false;
  for (auto rank = kRanks.rbegin(); rank != kRanks.rend(); ++rank) {
    CurRank.SetCaption(*rank);
    File1.SetPath(program_.ordvik.RankFolder(*rank));
    int team = File1.ListCount() - 1;
    do {
      TakeTurn(team);
      --team;
      program_.desktop.Yield();
    } while (team != -1);
  }
  Command1.Enable();
}

void FDraft::TakeTurn(int team) {
  Ordvik& ordvik = program_.ordvik;
  tempList.Clear();
  ordvik.WaitSeconds("1");
  CurTeam.SetCaption(File1.List(team));
  const std::string path = File1.Path() + "/" + File1.List(team);
  ordvik.LoadPlayerFile(tempList, path);
  if (CurTeam.Caption() == program_.franchise.TeamName.Caption()) {
    AwaitingPick = true;
    StartPlayerTurn();
    while (AwaitingPick) program_.desktop.Wait();
  } else {
    const std::string training = PartWithPlayer();
    ordvik.WaitSeconds("1");
    Refill(training);
  }
  // Only now does the man let go enter the pool, so that his own team can't take him back.
  if (!ReleasedPlayer.empty()) AddDraftee(ReleasedPlayer);
  ordvik.SaveListFile(tempList, path);
  ordvik.WaitSeconds("1");
}

// The index of the first player of tempList to retire this year, -1 if nobody does. Those nearest
// the head of the list are asked first, and one retirement a team and year is all.
int FDraft::FindRetirement() {
  const int count = tempList.ListCount();
  for (int i = 0; i < count; ++i) {
    const double age = std::floor(LenientNumber(FieldView(tempList.List(i), Field::kAge)));
    if (age > 30 && age < 35 && program_.ordvik.RollUpTo(10) <= 3) return i;
    if (age >= 35 && program_.ordvik.RollUpTo(10) <= 8) return i;
    program_.desktop.Yield();
  }
  return -1;
}

// Takes one player of a computer's team out of tempList and returns his Training.
std::string FDraft::PartWithPlayer() {
  const int retiring = FindRetirement();
  if (retiring < 0) return ReleasePlayer();
  const std::string record = tempList.List(retiring);
  AddRetirement(record);
  tempList.RemoveItem(retiring);
  return HockeyNaming::GetField(record, "Training");
}

// Of the three weakest the first who is 25 or older has to go, the weakest before the others; if
// all three are younger, the weakest. The team's file keeps the order of this sort.
std::string FDraft::ReleasePlayer() {
  constexpr int kFirstSafe = 7;
  constexpr int kGrownUp = 25;
  HockeyNaming::SortByOverall(tempList);
  int leaver = tempList.ListCount();
  double age = 0;
  do {
    --leaver;
    program_.desktop.Yield();
    if (leaver < 0) throw RuntimeError("Invalid list index: " + std::to_string(leaver));
    age = LenientNumber(FieldView(tempList.List(leaver), Field::kAge));
  } while (leaver != kFirstSafe && age < kGrownUp);
  if (leaver == kFirstSafe) leaver = tempList.ListCount() - 1;
  ReleasedPlayer = tempList.List(leaver);
  AddRelease(ReleasedPlayer);
  tempList.RemoveItem(leaver);
  return HockeyNaming::GetField(ReleasedPlayer, "Training");
}

// A position that is short gets the best man of the pool, once, however short it is. He takes over
// the line of the man who left.
void FDraft::Refill(std::string_view training) {
  std::array<int, kPositions.size()> players{};
  const int count = tempList.ListCount();
  for (int i = 0; i < count; ++i) {
    for (std::size_t p = 0; p < kPositions.size(); ++p) {
      if (FieldView(tempList.List(i), Field::kPosition) == kPositions[p]) ++players[p];
    }
    program_.desktop.Yield();
  }
  for (std::size_t p = 0; p < kPositions.size(); ++p) {
    const int wanted = kPositions[p] == std::string_view("GO") ? 1 : 2;
    if (players[p] >= wanted) continue;
    ListPair& list = *Pool()[p];
    const std::string record = list.records.List(0);
    tempList.AddItem(program_.hockey_naming.SetField(record, "Training", training));
    AddPick(record);
    list.records.RemoveItem(0);
    list.shown.RemoveItem(0);
  }
}

}  // namespace frostmark
