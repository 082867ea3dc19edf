#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace frostmark {

// What happened in a draft, as texts.
struct HistoryLine {
  enum class Event { kRetired, kReleased, kAdded };

  Event event = Event::kAdded;
  std::string_view team;
  std::string_view player;
};

// (GO) James Smith has retired from Boston Braves at 35 years old
std::string FormatRetirement(std::string_view record, std::string_view team);

// Boston Braves lost (GO) James Smith. Overall: 77
std::string FormatRelease(std::string_view record, std::string_view team);

// Boston Braves has added James Smith to the team. Overall: 88
std::string FormatPick(std::string_view record, std::string_view team);

// Takes any of the three apart; the names are views into LINE. Nothing when it has none of the
// forms.
std::optional<HistoryLine> ParseHistoryLine(std::string_view line);

}  // namespace frostmark
