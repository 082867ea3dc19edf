#include "records/hockey_naming.h"
#include "records/lines/standings_line.h"

namespace frostmark {
namespace {

Int16 CountOf(std::string_view part) {
  std::string digits(part);
  std::erase(digits, '(');
  return StrictInt16(digits);
}

}  // namespace

std::string HockeyNaming::CountResult(std::string_view line, std::string_view kind) {
  const StandingsLine parts = StandingsParts(line);
  Int16 wins = CountOf(parts.wins);
  Int16 losses = CountOf(parts.losses);
  Int16 ties = CountOf(parts.ties);
  if (kind == "Win") {
    wins += 1;
  } else if (kind == "Lose") {
    losses += 1;
  } else if (kind == "Tie") {
    ties += 1;
  } else {
    return {};
  }
  return FormatStandingsLine(wins, losses, ties, parts.team);
}

}  // namespace frostmark
