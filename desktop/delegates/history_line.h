#pragma once

#include <QString>
#include <optional>

namespace frostmark {

// A line of a draft's history, taken apart for drawing. The runs together are the line.
struct HistoryLine {
  enum class Event { kRetired, kReleased, kAdded };

  Event event = Event::kAdded;
  QString team;
  QString player;
  QString before;   // the first name, from the start of the line
  QString between;  // up to the second name
  QString after;    // behind the second name
  bool team_first = true;
};

// Takes the three forms apart:
//   "(GO) James Smith has retired from Boston Braves at 35 years old"
//   "Boston Braves lost (GO) James Smith. Overall: 77"
//   "Boston Braves has added James Smith to the team. Overall: 88"
// Nothing when TEXT has none of them.
std::optional<HistoryLine> ParseHistoryLine(const QString& text);

}  // namespace frostmark
