#pragma once

#include <functional>
#include <string>

namespace frostmark {

// How thoroughly to measure.
struct Thoroughness {
  int rounds = 60;
};

// One line of the report: two works that are done in turn, and how many times as long as the second
// the first may take.
struct Comparison {
  std::string name;
  std::function<void()> work;
  std::function<void()> bare;
  double limit;
  // For what waits for the disk: by the clock on the wall. Otherwise by the processor's, where
  // other load on the machine does not count.
  bool on_the_wall = false;
  // How many units (rolls, files) a run of each has done so far, where that differs from run to
  // run; times are then compared per unit.
  std::function<double()> units_of_work = nullptr;
  std::function<double()> units_of_bare = nullptr;
};

// Does the works of COMPARISON in turn, keeps the best time of each, prints the line and returns
// whether it holds.
bool Holds(const Comparison& comparison, const Thoroughness& thoroughness);

// Prints a line for a single figure and returns whether it is within its limit.
bool Holds(const std::string& name, double figure, const std::string& unit, double limit);

// The lines of the report: the game, the week, the save, the league build. Returns whether all
// hold.
bool AllHold(const Thoroughness& thoroughness);

}  // namespace frostmark
