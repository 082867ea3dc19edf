#pragma once

#include <array>
#include <string>
#include <string_view>

#include "records/numbers.h"

namespace frostmark {

// A player is one text of nine fields joined by ",":
//   James Smith,CF,85,82,91,70,83,23,N
enum class Field {
  kName,
  kPosition,
  kOverall,
  kPassing,
  kShooting,
  kDefense,
  kAgility,
  kAge,
  kTraining
};
inline constexpr int kFieldCount = 9;

// The field called NAME ("Name", "Position", ... "Training", case counts), or -1.
int FieldIndex(std::string_view name);

// Field INDEX (0 to 8) of RECORD without a copy; empty when the record is too short for it.
std::string_view FieldView(std::string_view record, int index);
inline std::string_view FieldView(std::string_view record, Field field) {
  return FieldView(record, static_cast<int>(field));
}

// The skills and the age of a player as numbers.
struct Ratings {
  Int16 passing;
  Int16 shooting;
  Int16 defense;
  Int16 agility;
};

// What RATINGS are worth at POSITION, or OLD_OVERALL when it is none of the six: a goalie's Defense
// and Passing, a defenceman's Defense, Passing and Agility, a forward's Shooting, Passing and
// Agility, averaged and rounded half to even.
Int16 OverallAt(std::string_view position, const Ratings& ratings, Int16 old_overall);

bool IsForward(std::string_view position);
bool IsBack(std::string_view position);  // a defenceman or the goalie

// One player as the Franchise screen and the release screen show him: CF - James Smith (85/23).
std::string RosterLine(std::string_view record);

// One player as the create-a-team panel shows him: CF - James Smith 85/23.
std::string PanelLine(std::string_view record);

// One player as the draft shows him: James Smith 85/23.
std::string PoolLine(std::string_view record);

// The team of a standings line: the text from the second character behind the first ")", so
// (3-1-0) Boston Braves gives Boston Braves. A line without ")" gives the text behind its first
// character.
std::string TeamOfLine(std::string_view team_line);

// The line of a team that has played no game: (0-0-0) Boston Braves.
std::string FreshTeamLine(std::string_view team);

// The leagues from the bottom of the ladder to its top. Each is the name of a folder.
inline constexpr std::array<const char*, 6> kRanks = {"Rank F", "Rank E", "Rank D",
                                                      "Rank C", "Rank B", "Rank A"};
inline constexpr int kRankCount = 6;

}  // namespace frostmark
