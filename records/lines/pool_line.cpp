#include "records/lines/pool_line.h"

#include "records/lines/line_text.h"
#include "records/lines/player_record.h"

namespace frostmark {

namespace {

constexpr std::string_view kBeforeOverall = " ";
constexpr std::string_view kBeforeAge = "/";

}  // namespace

std::string FormatPoolLine(std::string_view record) {
  return line_text::Joined({FieldView(record, Field::kName), kBeforeOverall,
                            FieldView(record, Field::kOverall), kBeforeAge,
                            FieldView(record, Field::kAge)});
}

std::optional<PlayerLine> ParsePoolLine(std::string_view line) {
  const auto parts = line_text::CutAtLast(line, kBeforeOverall);
  if (!parts || parts->before.empty()) return std::nullopt;
  const auto ratings = line_text::CutAt(parts->after, kBeforeAge);
  if (!ratings || !line_text::IsDigits(ratings->before) || !line_text::IsDigits(ratings->after)) {
    return std::nullopt;
  }
  return PlayerLine{{}, parts->before, ratings->before, ratings->after};
}

}  // namespace frostmark
