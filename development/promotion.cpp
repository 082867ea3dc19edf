#include <array>
#include <cmath>

#include "records/runtime_error.h"
#include "shell/program.h"

namespace frostmark {
namespace {

constexpr int kWinner = 0;
constexpr int kLoser = 5;
constexpr int kTeamsOfLeague = 6;
constexpr std::size_t kTop = kRanks.size() - 1;

// FOLDER with every occurrence of the old league's text replaced by the new one's. The whole path
// is searched, the program's own folder included.
std::string WithLeagueReplaced(std::string folder, const std::string& from, const std::string& to) {
  for (std::size_t at = folder.find(from); at != std::string::npos;
       at = folder.find(from, at + to.size())) {
    folder.replace(at, from.size(), to);
  }
  return folder;
}

std::string OneMore(const std::string& caption) {
  return WholeNumberText(std::floor(LenientNumber(caption)) + 1);
}

void CopyTable(UiQueue& queue, const RecordList& standings, RecordList& shown) {
  shown.Clear();
  const int count = standings.ListCount();
  for (int i = 0; i < count; ++i) {
    shown.AddItem(standings.List(i));
    queue.Yield();
  }
}

}  // namespace

void Franchise::theOffSeason() {
  FResults& results = program_.f_results;
  const std::array<Label*, kTop> winners = {&results.Label24, &results.Label12, &results.Label20,
                                            &results.Label8, &results.Label16};
  const std::array<Label*, kTop> losers = {&results.Label23, &results.Label11, &results.Label19,
                                           &results.Label7, &results.Label15};
  RefuseShortTables();
  // Border 0 lies between "Rank F" and "Rank E". All are looked at before the first file moves.
  std::array<bool, kTop> open{};
  for (std::size_t border = 0; border < kTop; ++border) open[border] = BorderOpen(border);

  for (std::size_t league = 0; league < kTop; ++league) {
    const std::string winner = FinalPlace(league, kWinner);
    const std::string loser = FinalPlace(league, kLoser);
    if (open[league]) Relocate(winner, league, league + 1);
    winners[league]->SetCaption(winner);
    // Below "Rank F" there is no league: its loser is only named.
    if (league > 0 && open[league - 1]) Relocate(loser, league, league - 1);
    losers[league]->SetCaption(loser);
  }
  CrownChampion();
  const std::string loser = FinalPlace(kTop, kLoser);
  if (open[kTop - 1]) Relocate(loser, kTop, kTop - 1);
  results.Label6.SetCaption(loser);

  CopyTable(program_.desktop, StatRankA, results.List1);
  CopyTable(program_.desktop, StatRankB, results.List2);
  CopyTable(program_.desktop, StatRankC, results.List3);
  CopyTable(program_.desktop, StatRankD, results.List4);
  CopyTable(program_.desktop, StatRankE, results.List5);
  CopyTable(program_.desktop, StatRankF, results.List6);
  Season.SetCaption(OneMore(Season.Caption()));
  NextWeek.SetCaption("Draft");
  results.Show();
}

std::string Franchise::FinalPlace(std::size_t league, int place) {
  return TeamOfLine(StatRankLists()[league]->List(place));
}

// A league that has lost lines of its table has no team to move. That ends the program, as a list
// error does, before anything has moved. The loser of "Rank F" moves nowhere and may be missing.
void Franchise::RefuseShortTables() {
  for (const ListBox* standings : StatRankLists()) {
    const int needed = standings == &StatRankF ? kWinner : kLoser;
    if (standings->ListCount() > needed) continue;
    throw RuntimeError("Invalid list index: " + standings->Name() + " has no line " +
                       std::to_string(needed));
  }
}

// A season whose end was cut off before it was saved ends once more on the next day with the same
// tables: a team that has got to its new league already stays there.
Franchise::Move Franchise::PlanMove(const std::string& team, std::size_t from,
                                    std::size_t to) const {
  const std::string folder = program_.ordvik.RankFolder(kRanks[from]) + "/";
  Move move{folder + team, WithLeagueReplaced(folder, kRanks[from], kRanks[to]) + team,
            MoveState::kDue};
  if (!Ordvik::FileExists(move.source)) {
    move.state = Ordvik::FileExists(move.destination) ? MoveState::kDone : MoveState::kLost;
  }
  return move;
}

// Two teams change places across a border, or none does: one of them alone would leave a league of
// seven and one of five, in which no week can be played. A team may be missing, or be across
// already, when the tables are older than the folders: after a season's end that was never saved or
// a save that was cut off. One alone moves only to set right the balance that a season's end,
// itself cut off, has left.
bool Franchise::BorderOpen(std::size_t border) {
  const Move up = PlanMove(FinalPlace(border, kWinner), border, border + 1);
  const Move down = PlanMove(FinalPlace(border + 1, kLoser), border + 1, border);
  if (up.state == MoveState::kLost || down.state == MoveState::kLost) return false;
  if (up.state == down.state) return true;
  int surplus = 0;  // of teams above the border
  for (std::size_t league = border + 1; league < kRanks.size(); ++league) {
    surplus += RankLists()[league]->ListCount() - kTeamsOfLeague;
  }
  return surplus == (up.state == MoveState::kDone ? 1 : -1);
}

void Franchise::CrownChampion() {
  const std::string winner = FinalPlace(kTop, kWinner);
  if (winner == TeamName.Caption()) {
    program_.desktop.ShowBox(
        {BoxIcon::kInformation, BoxButtons::kOk, "Congrats! You are the best in all the leagues!"});
    Champion.SetCaption(OneMore(Champion.Caption()));
  }
  program_.f_results.Label5.SetCaption(winner);
  program_.f_results.Champ.SetCaption(winner);
}

void Franchise::Relocate(const std::string& team, std::size_t from, std::size_t to) {
  const Move move = PlanMove(team, from, to);
  if (move.state == MoveState::kDue) Ordvik::MoveFile(move.source, move.destination);
  if (team == TeamName.Caption()) MyRank.SetCaption(kRanks[to]);
}

}  // namespace frostmark
