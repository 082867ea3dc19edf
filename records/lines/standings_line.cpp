#include "records/lines/standings_line.h"

#include <algorithm>

#include "records/lines/line_text.h"

namespace frostmark {

namespace {

constexpr std::string_view kOpening = "(";
constexpr char kDash = '-';
constexpr char kClosing = ')';

std::string Line(std::string_view wins, std::string_view losses, std::string_view ties,
                 std::string_view team) {
  return line_text::Joined({kOpening, wins, "-", losses, "-", ties, ") ", team});
}

// Part INDEX of TEXT split at every "-"; empty when there are fewer.
std::string_view DashPart(std::string_view text, int index) {
  for (; index > 0; --index) {
    const std::size_t dash = text.find(kDash);
    if (dash == std::string_view::npos) return {};
    text.remove_prefix(dash + 1);
  }
  return text.substr(0, text.find(kDash));
}

std::string_view UpToBracket(std::string_view text) {
  const std::size_t bracket = text.find(kClosing);
  return bracket == std::string_view::npos ? std::string_view() : text.substr(0, bracket);
}

}  // namespace

std::string FormatStandingsLine(int wins, int losses, int ties, std::string_view team) {
  return Line(std::to_string(wins), std::to_string(losses), std::to_string(ties), team);
}

std::string FormatFreshStandingsLine(std::string_view team) {
  return FormatStandingsLine(0, 0, 0, team);
}

StandingsLine StandingsParts(std::string_view line) {
  const std::size_t bracket = line.find(kClosing);
  const std::size_t team = bracket == std::string_view::npos ? 1 : bracket + 2;
  return {DashPart(line, 0), DashPart(line, 1), UpToBracket(DashPart(line, 2)),
          line.substr(std::min(team, line.size()))};
}

std::optional<StandingsLine> ParseStandingsLine(std::string_view line) {
  StandingsLine parts = StandingsParts(line);
  if (!parts.wins.starts_with(kOpening)) return std::nullopt;
  parts.wins.remove_prefix(kOpening.size());
  for (const std::string_view count : {parts.wins, parts.losses, parts.ties}) {
    if (!line_text::IsDigits(count)) return std::nullopt;
  }
  if (Line(parts.wins, parts.losses, parts.ties, parts.team) != line) return std::nullopt;
  return parts;
}

}  // namespace frostmark
