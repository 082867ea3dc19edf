#include "records/player_record.h"

#include <algorithm>

namespace frostmark {
namespace {

constexpr std::array<std::string_view, kFieldCount> kFieldNames = {
    "Name", "Position", "Overall", "Passing", "Shooting", "Defense", "Agility", "Age", "Training"};

std::string Joined(std::initializer_list<std::string_view> parts) {
  std::string text;
  for (const std::string_view part : parts) text += part;
  return text;
}

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

std::string RosterLine(std::string_view record) {
  return Joined({FieldView(record, Field::kPosition), " - ", FieldView(record, Field::kName), " (",
                 FieldView(record, Field::kOverall), "/", FieldView(record, Field::kAge), ")"});
}

std::string PanelLine(std::string_view record) {
  return Joined({FieldView(record, Field::kPosition), " - ", PoolLine(record)});
}

std::string PoolLine(std::string_view record) {
  return Joined({FieldView(record, Field::kName), " ", FieldView(record, Field::kOverall), "/",
                 FieldView(record, Field::kAge)});
}

std::string TeamOfLine(std::string_view team_line) {
  const std::size_t bracket = team_line.find(')');
  const std::size_t start = bracket == std::string_view::npos ? 1 : bracket + 2;
  return std::string(team_line.substr(std::min(start, team_line.size())));
}

std::string FreshTeamLine(std::string_view team) { return Joined({"(0-0-0) ", team}); }

}  // namespace frostmark
