#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace frostmark {

// How the first of two teams fared.
enum class Outcome { kBeat, kLost, kTied };

// The result of a game in the season's news: Boston Braves beat Denver Blizzard 3 to 1.
struct NewsLine {
  std::string_view first;
  Outcome outcome = Outcome::kTied;
  std::string_view second;
  std::string_view goals1;
  std::string_view goals2;  // of a tie the same as goals1

  // Whether TEAM played, and whether it won.
  bool Has(std::string_view team) const { return team == first || team == second; }
  bool WonBy(std::string_view team) const;
};

std::string FormatNewsLine(const NewsLine& news);

// Takes LINE apart into views into it; nothing when it has another form.
std::optional<NewsLine> ParseNewsLine(std::string_view line);

// The words between the two teams: " beat ".
std::string_view NewsVerb(Outcome outcome);

// The end of the line, the score as it is told: "3 to 1", "at 2".
std::string NewsScore(const NewsLine& news);

}  // namespace frostmark
