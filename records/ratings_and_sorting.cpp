#include <algorithm>
#include <numeric>
#include <vector>

#include "records/hockey_naming.h"
#include "records/lines/player_record.h"
#include "records/lines/standings_line.h"

namespace frostmark {
namespace {

double OverallOf(std::string_view record) {
  return LenientNumber(FieldView(record, Field::kOverall));
}

// The walk by which every list of the game is sorted: both indexes run over the whole list, and the
// order that it leaves among equals is part of the rules, so no other sort may take its place. The
// keys are read once and moved along with their items, which come into place at the end.
template <typename Key, typename Before>
void DoubleWalk(RecordList& list, std::vector<Key> keys, Before goes_up) {
  const std::size_t count = keys.size();
  std::vector<int> order(count);
  std::iota(order.begin(), order.end(), 0);
  for (std::size_t i = 0; i < count; ++i) {
    for (std::size_t j = 0; j < count; ++j) {
      if (j == i || !goes_up(keys[i], keys[j])) continue;
      std::swap(keys[i], keys[j]);
      std::swap(order[i], order[j]);
    }
  }
  std::vector<std::string> sorted;
  sorted.reserve(count);
  for (const int place : order) sorted.push_back(list.List(place));
  for (std::size_t i = 0; i < count; ++i) {
    if (order[i] != static_cast<int>(i)) list.SetList(static_cast<int>(i), sorted[i]);
  }
}

struct WinsAndLosses {
  double wins;
  double losses;
};

// Read leniently, with the first character of the line, its bracket, left out.
WinsAndLosses ReadWinsAndLosses(std::string_view line) {
  StandingsLine parts = StandingsParts(line);
  if (!parts.wins.empty()) parts.wins.remove_prefix(1);
  return {LenientNumber(parts.wins), LenientNumber(parts.losses)};
}

}  // namespace

void HockeyNaming::RateTeam(const RecordList& list) {
  TeamOffense = 0;
  TeamDefense = 0;
  int forwards = 0;
  int backs = 0;
  const int count = list.ListCount();
  for (int i = 0; i < count; ++i) {
    const std::string& record = list.List(i);
    // After an empty item the plain sums stay, and TeamOverall as it was.
    if (record.empty()) return;
    const std::string_view position = FieldView(record, Field::kPosition);
    // The two variables are everybody's: a rating that runs in the yield leaves its result in them,
    // and the rest of this walk is added to that.
    if (IsForward(position)) {
      TeamOffense = RoundHalfToEven(TeamOffense + OverallOf(record));
      ++forwards;
    } else if (IsBack(position)) {
      TeamDefense = RoundHalfToEven(TeamDefense + OverallOf(record));
      ++backs;
    }
    queue_.Yield();
  }
  if (TeamOffense == 0 || TeamDefense == 0) return;
  // Sums of another rating alone: there is nobody here to divide them by.
  if (forwards == 0 || backs == 0) return;
  TeamOffense = DivideHalfToEven(TeamOffense, forwards);
  TeamDefense = DivideHalfToEven(TeamDefense, backs);
  TeamOverall = DivideHalfToEven(TeamOffense + TeamDefense, 2);
}

void HockeyNaming::SortRankList(RecordList& list) {
  std::vector<WinsAndLosses> keys;
  for (int i = 0; i < list.ListCount(); ++i) keys.push_back(ReadWinsAndLosses(list.List(i)));
  // Ties are not looked at: they are worth neither a place up nor one down.
  DoubleWalk(list, std::move(keys), [](const WinsAndLosses& a, const WinsAndLosses& b) {
    return a.wins > b.wins || (a.wins == b.wins && a.losses < b.losses);
  });
}

void HockeyNaming::SortByOverall(RecordList& list) {
  std::vector<double> keys;
  for (int i = 0; i < list.ListCount(); ++i) keys.push_back(OverallOf(list.List(i)));
  DoubleWalk(list, std::move(keys), [](double a, double b) { return a > b; });
}

void HockeyNaming::SetTrainingFlags(RecordList& list) {
  const int last = list.ListCount() - 1;
  for (int i = 0; i <= last; ++i) {
    if (FieldView(list.List(i), Field::kPosition) == "GO") {
      list.SetList(i, SetField(list.List(i), "Training", "N"));
      continue;
    }
    // Index 0 is never taken as j: it is the goalie's place.
    for (int j = last; j >= 1; --j) {
      const std::string mine = list.List(i);
      const std::string other = list.List(j);
      if (j != i && FieldView(mine, Field::kPosition) == FieldView(other, Field::kPosition)) {
        const bool mine_leads = OverallOf(mine) > OverallOf(other);
        // The two change places as well as lines. Each pair is met once from either side, so that
        // in the end everybody stands where they stood, and the later one has won a tie.
        list.SetList(j, SetField(mine, "Training", mine_leads ? "N" : "Y"));
        list.SetList(i, SetField(other, "Training", mine_leads ? "Y" : "N"));
      }
      queue_.Yield();
    }
  }
}

}  // namespace frostmark
