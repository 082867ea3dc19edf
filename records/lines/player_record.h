#pragma once

#include <array>
#include <optional>
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

// Whether the skill FIELD counts at POSITION.
bool CountsAt(std::string_view position, Field field);

bool IsForward(std::string_view position);
bool IsBack(std::string_view position);  // a defenceman or the goalie

// A record's fields in their order, as texts.
using PlayerFields = std::array<std::string_view, kFieldCount>;

// The record of FIELDS, none of which holds a comma.
std::string FormatPlayerRecord(const PlayerFields& fields);

// The fields of RECORD, which are views into it; nothing unless they are nine.
std::optional<PlayerFields> ParsePlayerRecord(std::string_view record);

}  // namespace frostmark
