#pragma once

#include <QString>
#include <optional>

namespace frostmark {

// A player as a list shows him. A text without a figure has -1 there, one without a position "".
struct PlayerLine {
  QString position;
  QString name;
  int overall = -1;
  int age = -1;
};

// Reads every text in which the game's lists show a player, and nothing else:
//   "CF - James Smith 85/23"     the create-a-team panel
//   "CF - James Smith (85/23)"   rosters
//   "CF - James Smith (85)"      the lines of a watched game
//   "James Smith 85/23"          the pool of the draft
//   "James Smith,CF,85,82,91,70,83,23,N"   a whole record
std::optional<PlayerLine> ReadPlayerLine(const QString& text);

}  // namespace frostmark
