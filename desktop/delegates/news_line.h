#pragma once

#include <QString>
#include <optional>

namespace frostmark {

// A line of the season's news, taken apart for drawing: "Boston Braves beat Denver Blizzard 3 to
// 1".
struct NewsLine {
  enum class Verb { kBeat, kLost, kTied };

  QString first;
  Verb verb = Verb::kTied;
  QString verb_text;  // " beat ", " lost to ", " tied "
  QString second;
  QString score;  // "3 to 1", "at 2"

  // Whether TEAM played, and how it fared.
  bool Has(const QString& team) const { return team == first || team == second; }
  bool WonBy(const QString& team) const;
};

// Nothing when TEXT has another form.
std::optional<NewsLine> ParseNewsLine(const QString& text);

}  // namespace frostmark
