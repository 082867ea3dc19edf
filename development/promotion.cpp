#include <array>
#include <cmath>

#include "records/runtime_error.h"
#include "shell/program.h"

namespace frostmark {
namespace {

constexpr int kWinner = 0;
constexpr int kLoser = 5;
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
  CheckFinalTables();
  for (std::size_t league = 0; league < kTop; ++league) {
    const ListBox& standings = *StatRankLists()[league];
    Relocate(TeamOfLine(standings.List(kWinner)), league, league + 1, *winners[league]);
    const std::string loser = TeamOfLine(standings.List(kLoser));
    if (league == 0) {
      losers[league]->SetCaption(loser);  // there is no league below: it is only named
    } else {
      Relocate(loser, league, league - 1, *losers[league]);
    }
  }
  CrownChampion();
  Relocate(TeamOfLine(StatRankA.List(kLoser)), kTop, kTop - 1, results.Label6);

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

// A table that names a team without a file would leave the ladder half climbed, with seven teams in
// one league and five in another, so that it is found out before the first file moves.
void Franchise::CheckFinalTables() {
  const auto check = [this](std::size_t league, int place, std::size_t to) {
    const Move move = PlanMove(TeamOfLine(StatRankLists()[league]->List(place)), league, to);
    if (!move.done && !Ordvik::FileExists(move.source)) {
      throw RuntimeError("File not found: " + move.source);
    }
  };
  for (std::size_t league = 0; league < kTop; ++league) {
    check(league, kWinner, league + 1);
    check(league + 1, kLoser, league);
  }
}

// A season whose end was cut off, before it was saved, ends once more on the next day with the same
// tables: a team that has got to its new league already stays there.
Franchise::Move Franchise::PlanMove(const std::string& team, std::size_t from,
                                    std::size_t to) const {
  const std::string folder = program_.ordvik.RankFolder(kRanks[from]) + "/";
  const std::string source = folder + team;
  const std::string destination = WithLeagueReplaced(folder, kRanks[from], kRanks[to]) + team;
  return {source, destination, !Ordvik::FileExists(source) && Ordvik::FileExists(destination)};
}

void Franchise::CrownChampion() {
  const std::string winner = TeamOfLine(StatRankA.List(kWinner));
  if (winner == TeamName.Caption()) {
    program_.desktop.ShowBox(
        {BoxIcon::kInformation, BoxButtons::kOk, "Congrats! You are the best in all the leagues!"});
    Champion.SetCaption(OneMore(Champion.Caption()));
  }
  program_.f_results.Label5.SetCaption(winner);
  program_.f_results.Champ.SetCaption(winner);
}

void Franchise::Relocate(const std::string& team, std::size_t from, std::size_t to, Label& shown) {
  const Move move = PlanMove(team, from, to);
  if (!move.done) Ordvik::MoveFile(move.source, move.destination);
  shown.SetCaption(team);
  if (team == TeamName.Caption()) MyRank.SetCaption(kRanks[to]);
}

}  // namespace frostmark
