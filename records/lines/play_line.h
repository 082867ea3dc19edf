#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace frostmark {

// What a line of the play-by-play tells.
enum class Play {
  kFaceOff,       // WHO wins it
  kPass,          // from WHO to WHOM
  kOutletPass,    // the pass after a steal or a save
  kSteal,         // WHO takes the puck from WHOM
  kSave,          // WHO stops WHOM
  kGoal,          // WHO scores, WHOM assists
  kFirstPeriod,   // ends
  kSecondPeriod,  // ends
  kMatchEnd,
  kWin,  // WHO beats WHOM, with a score
  kTie,  // between WHO and WHOM, with a score
};

struct PlayLine {
  Play play;
  std::string_view who = {};
  std::string_view whom = {};
  std::string_view goals1 = {};  // of the winner, or of either team in a tie
  std::string_view goals2 = {};  // of the loser
};

// The line that tells PLAY of players (of teams, in a result). Parts that the play does not have
// are not read.
std::string FormatPlayLine(const PlayLine& line);

// What LINE tells, in views into it; nothing when it is not a line of the play-by-play.
std::optional<PlayLine> ParsePlayLine(std::string_view line);

}  // namespace frostmark
