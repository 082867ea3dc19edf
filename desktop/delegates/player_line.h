#pragma once

#include <QString>
#include <optional>

namespace frostmark {

// What a player's line in a list says, taken apart for drawing. The text itself stays what the list
// holds and what a screen reader reads.
struct PlayerLine {
  QString position;  // "GO" to "LF"; empty in the lines of the draft pool
  QString name;
  int overall = 0;
  int age = 0;
};

// Takes any of the three forms apart: "CF - James Smith (85/23)" of the rosters, "CF - James Smith
// 85/23" of the create-a-team panel and "James Smith 85/23" of the pool. Nothing when TEXT has none
// of them, as after a garbled file; such a line is drawn as it stands.
std::optional<PlayerLine> ParsePlayerLine(const QString& text);

}  // namespace frostmark
