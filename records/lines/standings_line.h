#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace frostmark {

// A team's line in its league's standings, as texts: (3-1-0) Boston Braves.
struct StandingsLine {
  std::string_view wins;
  std::string_view losses;
  std::string_view ties;
  std::string_view team;
};

std::string FormatStandingsLine(int wins, int losses, int ties, std::string_view team);

// The line of a team that has played no game: (0-0-0) Boston Braves.
std::string FormatFreshStandingsLine(std::string_view team);

// What stands at the places of the four parts, whatever LINE is: the wins are the text up to the
// first "-" with the bracket that opens the line, the losses that up to the second "-", the ties
// what then stands before a ")", the team the text from the second character after the first ")",
// or after the first character of a line without one. The parts are views into LINE.
StandingsLine StandingsParts(std::string_view line);

// LINE taken apart, the counts without brackets; nothing when it is not in the form.
std::optional<StandingsLine> ParseStandingsLine(std::string_view line);

}  // namespace frostmark
