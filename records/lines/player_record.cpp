#include "records/lines/player_record.h"

#include <algorithm>

namespace frostmark {
namespace {

constexpr std::array<std::string_view, kFieldCount> kFieldNames = {
    "Name", "Position", "Overall", "Passing", "Shooting", "Defense", "Agility", "Age", "Training"};

}  // namespace

int FieldIndex(std::string_view name) {
  const auto* const found = std::find(kFieldNames.begin(), kFieldNames.end(), name);
  return found == kFieldNames.end() ? -1 : static_cast<int>(found - kFieldNames.begin());
}

std::string_view FieldView(std::string_view record, int index) {
  // Byte by byte: the fields are so short that a search for each comma costs more.
  std::size_t start = 0;
  while (index > 0) {
    if (start == record.size()) return {};
    if (record[start++] == ',') --index;
  }
  std::size_t end = start;
  while (end < record.size() && record[end] != ',') ++end;
  return record.substr(start, end - start);
}

bool IsForward(std::string_view position) {
  return position == "CF" || position == "RF" || position == "LF";
}

bool IsBack(std::string_view position) {
  return position == "LD" || position == "GO" || position == "RD";
}

Int16 OverallAt(std::string_view position, const Ratings& ratings, Int16 old_overall) {
  if (position == "GO") return DivideHalfToEven(ratings.defense + ratings.passing, 2);
  if (IsBack(position)) {
    return DivideHalfToEven(ratings.defense + ratings.passing + ratings.agility, 3);
  }
  if (IsForward(position)) {
    return DivideHalfToEven(ratings.shooting + ratings.passing + ratings.agility, 3);
  }
  return old_overall;
}

bool CountsAt(std::string_view position, Field field) {
  switch (field) {
    case Field::kPassing:
      return IsBack(position) || IsForward(position);
    case Field::kShooting:
      return IsForward(position);
    case Field::kDefense:
      return IsBack(position);
    case Field::kAgility:
      return position != "GO" && (IsBack(position) || IsForward(position));
    case Field::kName:
    case Field::kPosition:
    case Field::kOverall:
    case Field::kAge:
    case Field::kTraining:
      break;
  }
  return false;
}

std::string FormatPlayerRecord(const PlayerFields& fields) {
  std::string record(fields[0]);
  for (std::size_t i = 1; i < fields.size(); ++i) {
    record += ',';
    record += fields[i];
  }
  return record;
}

std::optional<PlayerFields> ParsePlayerRecord(std::string_view record) {
  if (std::count(record.begin(), record.end(), ',') != kFieldCount - 1) return std::nullopt;
  PlayerFields fields;
  for (int i = 0; i < kFieldCount; ++i) fields[static_cast<std::size_t>(i)] = FieldView(record, i);
  return fields;
}

}  // namespace frostmark
