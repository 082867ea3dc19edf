#include <array>
#include <charconv>
#include <cmath>

#include "development/league_moves.h"
#include "program/program.h"
#include "records/leagues.h"
#include "records/lines/standings_line.h"

namespace frostmark {
namespace {

constexpr int kWinner = 0;
constexpr int kLoser = kTeamsInLeague - 1;
constexpr std::size_t kTop = kRanks.size() - 1;

// VALUE as people write it: 3, 3.5.
std::string NumberText(double value) {
  if (value == std::floor(value)) return WholeNumberText(value);
  constexpr int kDigits = 15;
  constexpr std::size_t kLongest = 32;  // sign, digits, point and exponent fit well within
  std::array<char, kLongest> text{};
  const auto end = std::to_chars(text.data(), text.data() + text.size(), value,
                                 std::chars_format::general, kDigits);
  return {text.data(), end.ptr};
}

// "" for a table that has lost the line.
std::string TeamAt(const RecordList& standings, int place) {
  return std::string(StandingsParts(standings.List(place)).team);
}

LeagueMoves PlannedMoves(Ordvik& ordvik, Franchise& franchise) {
  LeagueMoves::Borders borders;
  std::array<int, kRankCount> sizes{};
  for (std::size_t border = 0; border < kBorders; ++border) {
    borders[border] = {TeamAt(*franchise.StatRankLists()[border], kWinner),
                       TeamAt(*franchise.StatRankLists()[border + 1], kLoser)};
  }
  for (std::size_t league = 0; league < sizes.size(); ++league) {
    sizes[league] = franchise.RankLists()[league]->ListCount();
  }
  return {ordvik, borders, sizes};
}

void CopyTable(UiQueue& queue, const RecordList& standings, RecordList& shown) {
  shown.Clear();
  const int count = standings.ListCount();
  for (int i = 0; i < count; ++i) {
    shown.AddItem(standings.List(i));
    queue.Yield();
  }
}

void CrownChampion(Program& program) {
  Franchise& franchise = program.franchise;
  const std::string winner = TeamAt(franchise.StatRankA, kWinner);
  if (winner == franchise.TeamName.Caption()) {
    program.front_end.ShowBox(
        {BoxIcon::kInformation, BoxButtons::kOk, "Congrats! You are the best in all the leagues!"});
    // As it stands: 2.5 gives 3.5.
    franchise.Champion.SetCaption(NumberText(LenientNumber(franchise.Champion.Caption()) + 1));
  }
  program.f_results.Winner(kTop).SetCaption(winner);
  program.f_results.Champ.SetCaption(winner);
}

}  // namespace

void Franchise::theOffSeason() {
  FResults& results = program_.f_results;
  LeagueMoves moves = PlannedMoves(program_.ordvik, *this);
  moves.WriteDown();
  const auto follow = [this](const std::string& team, std::size_t league) {
    if (team == TeamName.Caption()) MyRank.SetCaption(kRanks[league]);
  };
  const auto move_up = [&](const std::string& team, std::size_t border) {
    if (moves.MoveUp(border)) follow(team, border + 1);
  };
  const auto move_down = [&](const std::string& team, std::size_t border) {
    if (moves.MoveDown(border)) {
      follow(team, border);
    } else if (moves.TakenBack(border)) {
      follow(TeamAt(*StatRankLists()[border], kWinner), border);
    }
  };

  for (std::size_t league = 0; league < kTop; ++league) {
    const std::string winner = TeamAt(*StatRankLists()[league], kWinner);
    const std::string loser = TeamAt(*StatRankLists()[league], kLoser);
    move_up(winner, league);
    results.Winner(league).SetCaption(winner);
    // Below "Rank F" there is no league: its loser is only named.
    if (league > 0) move_down(loser, league - 1);
    results.Loser(league).SetCaption(loser);
  }
  CrownChampion(program_);
  const std::string loser = TeamAt(StatRankA, kLoser);
  move_down(loser, kTop - 1);
  results.Loser(kTop).SetCaption(loser);
  moves.Finish();
  for (std::size_t border = 0; border < kBorders; ++border) {
    results.crossed[border] = moves.Crossed(border);
  }

  CopyTable(program_.front_end, StatRankA, results.List1);
  CopyTable(program_.front_end, StatRankB, results.List2);
  CopyTable(program_.front_end, StatRankC, results.List3);
  CopyTable(program_.front_end, StatRankD, results.List4);
  CopyTable(program_.front_end, StatRankE, results.List5);
  CopyTable(program_.front_end, StatRankF, results.List6);
  Season.SetCaption(WholeNumberText(std::floor(LenientNumber(Season.Caption())) + 1));
  NextWeek.SetCaption("Draft");
  results.Show();
}

}  // namespace frostmark
