#include <algorithm>
#include <cmath>
#include <vector>

#include "records/hockey_naming.h"
#include "records/lines/player_record.h"

namespace frostmark {
namespace {

constexpr int kBestSkill = 99;

// At least nine; a record with a quoted field that holds a comma has more, and keeps them.
using Parts = std::vector<std::string>;

std::string& Part(Parts& parts, Field field) { return parts[static_cast<std::size_t>(field)]; }

Parts Split(std::string_view record) {
  Parts parts;
  parts.reserve(kFieldCount);
  for (std::size_t start = 0; start <= record.size();) {
    const std::size_t end = std::min(record.find(',', start), record.size());
    parts.emplace_back(record.substr(start, end - start));
    start = end + 1;
  }
  if (parts.size() < kFieldCount) parts.resize(kFieldCount);
  return parts;
}

std::string Join(const Parts& parts) {
  std::string record = parts[0];
  for (std::size_t i = 1; i < parts.size(); ++i) {
    record += ',';
    record += parts[i];
  }
  return record;
}

Int16 Number(Parts& parts, Field field) {
  return RoundHalfToEven(LenientNumber(Part(parts, field)));
}

// What VALUE adds to the field. Agility is left out on purpose: it is a gift of birth that no
// training moves, so a call for it does nothing.
double Amount(Field field, std::string_view value) {
  return field == Field::kAgility ? 0 : std::floor(LenientNumber(value));
}

}  // namespace

HockeyNaming::HockeyNaming(Program& program, UiQueue& queue, Ordvik& ordvik)
    : program_(program), queue_(queue), ordvik_(ordvik) {}

std::string HockeyNaming::GetField(std::string_view record, std::string_view field_name) {
  const int index = FieldIndex(field_name);
  return index < 0 ? std::string() : std::string(FieldView(record, index));
}

Ratings HockeyNaming::CurRatings() const {
  return {CurPassing, CurShooting, CurDefense, CurAgility};
}

std::string HockeyNaming::SetField(std::string_view record, std::string_view field_name,
                                   std::string_view value) {
  if (record.empty()) return {};
  Parts parts = Split(record);
  const auto field = static_cast<Field>(FieldIndex(field_name));
  switch (field) {
    case Field::kPassing:
    case Field::kShooting:
    case Field::kDefense:
    case Field::kAgility:
    case Field::kAge: {
      std::string& part = Part(parts, field);
      part = WholeNumberText(std::floor(LenientNumber(part) + Amount(field, value)));
      break;
    }
    case Field::kTraining:
      Part(parts, field) = value;
      break;
    default:  // a name, a position and an Overall are never set, nor is a field that is not there
      break;
  }
  for (const Field skill : {Field::kPassing, Field::kShooting, Field::kDefense, Field::kAgility}) {
    if (LenientNumber(Part(parts, skill)) > kBestSkill) {
      Part(parts, skill) = std::to_string(kBestSkill);
    }
  }
  CurName = Part(parts, Field::kName);
  CurPosition = Part(parts, Field::kPosition);
  CurOverall = Number(parts, Field::kOverall);  // the old one: callers read the new one's text
  CurPassing = Number(parts, Field::kPassing);
  CurShooting = Number(parts, Field::kShooting);
  CurDefense = Number(parts, Field::kDefense);
  CurAgility = Number(parts, Field::kAgility);
  CurAge = Number(parts, Field::kAge);
  CurTraining = Part(parts, Field::kTraining);
  if (IsForward(CurPosition) ||
      IsBack(CurPosition)) {  // anybody else keeps the text that they have
    Part(parts, Field::kOverall) = std::to_string(OverallAt(CurPosition, CurRatings(), CurOverall));
  }
  return Join(parts);
}

}  // namespace frostmark
