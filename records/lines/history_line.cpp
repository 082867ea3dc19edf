#include "records/lines/history_line.h"

#include "records/lines/line_text.h"
#include "records/lines/player_record.h"

namespace frostmark {

namespace {

using Event = HistoryLine::Event;
using line_text::CutAt;
using line_text::CutAtLast;
using line_text::IsDigits;
using line_text::IsPosition;
using line_text::Joined;

constexpr std::string_view kOpening = "(";
constexpr std::string_view kClosing = ") ";
constexpr std::string_view kRetired = " has retired from ";
constexpr std::string_view kAge = " at ";
constexpr std::string_view kYearsOld = " years old";
constexpr std::string_view kLost = " lost (";
constexpr std::string_view kLostOverall = ". Overall: ";
constexpr std::string_view kAdded = " has added ";
constexpr std::string_view kAddedOverall = " to the team. Overall: ";

std::string_view Name(std::string_view record) { return FieldView(record, Field::kName); }
std::string_view Position(std::string_view record) { return FieldView(record, Field::kPosition); }
std::string_view Overall(std::string_view record) { return FieldView(record, Field::kOverall); }

std::optional<HistoryLine> ParseRetirement(std::string_view line) {
  const auto inner = line_text::Between(line, kOpening, kYearsOld);
  if (!inner) return std::nullopt;
  const auto position = CutAt(*inner, kClosing);
  if (!position || !IsPosition(position->before)) return std::nullopt;
  const auto names = CutAt(position->after, kRetired);
  if (!names) return std::nullopt;
  const auto team = CutAtLast(names->after, kAge);
  if (!team || !IsDigits(team->after)) return std::nullopt;
  return HistoryLine{Event::kRetired, team->before, names->before};
}

std::optional<HistoryLine> ParseRelease(std::string_view line) {
  const auto parts = CutAt(line, kLost);
  if (!parts) return std::nullopt;
  const auto position = CutAt(parts->after, kClosing);
  if (!position || !IsPosition(position->before)) return std::nullopt;
  const auto player = CutAtLast(position->after, kLostOverall);
  if (!player || !IsDigits(player->after)) return std::nullopt;
  return HistoryLine{Event::kReleased, parts->before, player->before};
}

std::optional<HistoryLine> ParsePick(std::string_view line) {
  const auto parts = CutAt(line, kAdded);
  if (!parts) return std::nullopt;
  const auto player = CutAtLast(parts->after, kAddedOverall);
  if (!player || !IsDigits(player->after)) return std::nullopt;
  return HistoryLine{Event::kAdded, parts->before, player->before};
}

}  // namespace

std::string FormatRetirement(std::string_view record, std::string_view team) {
  return Joined({kOpening, Position(record), kClosing, Name(record), kRetired, team, kAge,
                 FieldView(record, Field::kAge), kYearsOld});
}

std::string FormatRelease(std::string_view record, std::string_view team) {
  return Joined(
      {team, kLost, Position(record), kClosing, Name(record), kLostOverall, Overall(record)});
}

std::string FormatPick(std::string_view record, std::string_view team) {
  return Joined({team, kAdded, Name(record), kAddedOverall, Overall(record)});
}

std::optional<HistoryLine> ParseHistoryLine(std::string_view line) {
  for (const auto parse : {ParseRetirement, ParseRelease, ParsePick}) {
    const auto parsed = parse(line);
    if (parsed && !parsed->team.empty() && !parsed->player.empty()) return parsed;
  }
  return std::nullopt;
}

}  // namespace frostmark
