#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace frostmark {

// One player in the line of a list, as texts.
struct PlayerLine {
  std::string_view position;  // "GO" to "LF"; empty in the draft's pool
  std::string_view name;
  std::string_view overall;
  std::string_view age;  // empty in the line-up of a match
};

// The player of RECORD as the rosters and the release screen show them: CF - James Smith (85/23).
std::string FormatRosterLine(std::string_view record);

// As the create-a-team panel does: CF - James Smith 85/23.
std::string FormatPanelLine(std::string_view record);

// As the line-up of a match does: CF - James Smith (85).
std::string FormatLineUpLine(std::string_view record);

// Takes any of these three forms apart. Nothing when LINE has none of them, as after a garbled
// file. The parts are views into LINE.
std::optional<PlayerLine> ParsePlayerLine(std::string_view line);

}  // namespace frostmark
