#include "records/lines/player_line.h"

#include "records/lines/line_text.h"
#include "records/lines/player_record.h"
#include "records/lines/pool_line.h"

namespace frostmark {

namespace {

using line_text::CutAt;
using line_text::CutAtLast;
using line_text::IsDigits;
using line_text::Joined;

constexpr std::string_view kAfterPosition = " - ";
constexpr std::string_view kOpening = " (";
constexpr std::string_view kBeforeAge = "/";
constexpr std::string_view kClosing = ")";

}  // namespace

std::string FormatRosterLine(std::string_view record) {
  return Joined({FieldView(record, Field::kPosition), kAfterPosition,
                 FieldView(record, Field::kName), kOpening, FieldView(record, Field::kOverall),
                 kBeforeAge, FieldView(record, Field::kAge), kClosing});
}

std::string FormatPanelLine(std::string_view record) {
  return Joined({FieldView(record, Field::kPosition), kAfterPosition, FormatPoolLine(record)});
}

std::string FormatLineUpLine(std::string_view record) {
  return Joined({FieldView(record, Field::kPosition), kAfterPosition,
                 FieldView(record, Field::kName), kOpening, FieldView(record, Field::kOverall),
                 kClosing});
}

std::optional<PlayerLine> ParsePlayerLine(std::string_view line) {
  const auto parts = CutAt(line, kAfterPosition);
  if (!parts || !line_text::IsPosition(parts->before)) return std::nullopt;
  if (!parts->after.ends_with(kClosing)) {
    auto player = ParsePoolLine(parts->after);
    if (player) player->position = parts->before;
    return player;
  }
  const auto rest = CutAtLast(parts->after, kOpening);
  if (!rest || rest->before.empty()) return std::nullopt;
  std::string_view ratings = rest->after;
  ratings.remove_suffix(kClosing.size());
  const auto both = CutAt(ratings, kBeforeAge);
  const std::string_view overall = both ? both->before : ratings;
  if (!IsDigits(overall) || (both && !IsDigits(both->after))) return std::nullopt;
  return PlayerLine{parts->before, rest->before, overall, both ? both->after : std::string_view()};
}

}  // namespace frostmark
