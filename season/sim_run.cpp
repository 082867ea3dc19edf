#include <cmath>

#include "program/program.h"
#include "season/week_table.h"

namespace frostmark {
namespace {

constexpr std::string_view kWeekPrefix = "Week ";
// Beyond it no week is left to simulate.
constexpr int kWeekAfterSeason = kWeeksOfSeason + 1;

std::string WithoutPrefix(std::string text) {
  for (std::size_t at = text.find(kWeekPrefix); at != std::string::npos;
       at = text.find(kWeekPrefix, at)) {
    text.erase(at, kWeekPrefix.size());
  }
  return text;
}

}  // namespace

void Franchise::PressSim() {
  const auto refuse = [this](const char* text) {
    program_.front_end.ShowBox({BoxIcon::kStop, BoxButtons::kOk, text});
  };
  if (NextWeek.Caption() == "Off Season") return refuse("You can't simulate the off season!");
  const std::string answer = program_.front_end.AskText("Simulate until which week?");
  if (!IsNumeric(answer)) return refuse("You must enter a valid number!");
  const double target = std::floor(LenientNumber(answer));
  // A marker without a number, as in a damaged save, counts as week 0. It is a week that no press
  // moves on from, so such a run ends with "Cancel".
  const double current = std::nearbyint(LenientNumber(WithoutPrefix(NextWeek.Caption())));
  if (target <= current) return refuse("You must select a week greater than your current!");
  // It is the current week that is looked at and not the target, so this never comes up in a
  // season: a target beyond the schedule plays on through the off-season.
  if (current > kWeekAfterSeason) return refuse("You can't simulate beyond the currect schedule!");

  const std::string target_marker = std::string(kWeekPrefix) + WholeNumberText(target);
  SimRunning = true;
  Command5.Show();
  do {
    PressBegin();
    program_.front_end.Yield();
  } while (NextWeek.Caption() != target_marker && Command5.Visible());
  SimRunning = false;
  Command5.Hide();
}

}  // namespace frostmark
