#pragma once

#include <array>
#include <optional>
#include <string_view>

namespace frostmark {

// One game of the week: two schedule positions in a league's list of names. The first team is the
// home side of a watched game.
struct Fixture {
  int first;
  int second;
};

using FixturesOfWeek = std::array<Fixture, 3>;

// Every pair of a league meets once in a round, and a season has two rounds.
inline constexpr int kWeeksOfRound = 5;
inline constexpr int kWeeksOfSeason = 2 * kWeeksOfRound;

// The fixed schedule of every league and season. Five weeks play each of the fifteen pairs once;
// the next five repeat them, with the same side at home.
inline constexpr std::array<FixturesOfWeek, kWeeksOfRound> kWeekTable = {{
    {{{2, 1}, {3, 0}, {4, 5}}},
    {{{3, 4}, {0, 1}, {2, 5}}},
    {{{0, 4}, {2, 3}, {1, 5}}},
    {{{4, 1}, {5, 3}, {0, 2}}},
    {{{5, 0}, {1, 3}, {4, 2}}},
}};

// The number of the week that MARKER ("Week 1" to "Week 10") names; none for any other text, a
// number with a leading zero included.
constexpr std::optional<int> WeekOf(std::string_view marker) {
  constexpr std::array<std::string_view, kWeeksOfSeason> kMarkers = {
      "Week 1", "Week 2", "Week 3", "Week 4", "Week 5",
      "Week 6", "Week 7", "Week 8", "Week 9", "Week 10"};
  for (int i = 0; i < kWeeksOfSeason; ++i) {
    if (kMarkers[static_cast<std::size_t>(i)] == marker) return i + 1;
  }
  return std::nullopt;
}

// The games of WEEK (1 to 10), in the order in which each league plays them.
constexpr const FixturesOfWeek& FixturesOf(int week) {
  return kWeekTable[static_cast<std::size_t>((week - 1) % kWeeksOfRound)];
}

}  // namespace frostmark
