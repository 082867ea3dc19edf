#pragma once

#include <QString>
#include <optional>

namespace frostmark {

// What a line of a league's standings says, taken apart for drawing.
struct TeamLine {
  int wins = 0;
  int losses = 0;
  int ties = 0;
  QString team;
};

// Takes "(3-1-0) Boston Braves" apart. Nothing when TEXT has another form.
std::optional<TeamLine> ParseTeamLine(const QString& text);

}  // namespace frostmark
