#pragma once

#include <array>
#include <string>
#include <string_view>

namespace frostmark {

// The leagues from the bottom of the ladder to its top. Each is the name of a folder.
inline constexpr std::array<const char*, 6> kRanks = {"Rank F", "Rank E", "Rank D",
                                                      "Rank C", "Rank B", "Rank A"};
inline constexpr int kRankCount = 6;

inline constexpr int kTeamsInLeague = 6;

// The letter of RANK, one of kRanks: "F" to "A".
inline std::string LetterOf(std::string_view rank) { return std::string(rank.substr(5, 1)); }

inline constexpr int kPositionCount = 6;
using PositionOrder = std::array<const char*, kPositionCount>;

// The positions in the order of a roster: the lead line of a new team, and after the goalie its
// training line.
inline constexpr PositionOrder kRosterOrder = {"GO", "RD", "LD", "RF", "CF", "LF"};

// In the order of the draft: of its lists, and in which a team that is short of players picks.
inline constexpr PositionOrder kDraftOrder = {"GO", "LD", "RD", "LF", "CF", "RF"};

}  // namespace frostmark
