#pragma once

#include <cstdlib>
#include <iostream>
#include <string>
#include <string_view>

#include "program/program.h"
#include "tests/support/scripted_front_end.h"
#include "tests/support/seeded_dice.h"

namespace frostmark::test {

// Each target is one of these. Errors of the game's own (RuntimeError, Refusal) are answers like
// others; anything else that is thrown, and whatever the sanitizers see, is a finding.
void Take(std::string_view input);

// Ends the target as a crash would when CONDITION does not hold.
inline void Require(bool condition, std::string_view what) {
  if (condition) return;
  std::cerr << "does not hold: " << what << '\n';
  std::abort();
}

// A game without a world: nothing is read, and what it writes reaches no folder.
struct Game {
  explicit Game(const std::string& app_path = "/nonexistent/frostmark")
      : program(front_end, dice, app_path) {}

  ScriptedFrontEnd front_end;
  SeededDice dice;
  Program program;
};

// The lines of INPUT as a list.
inline void FillList(RecordList& list, std::string_view input) {
  list.Clear();
  while (!input.empty()) {
    const std::size_t end = std::min(input.find('\n'), input.size());
    list.AddItem(std::string(input.substr(0, end)));
    input.remove_prefix(std::min(end + 1, input.size()));
  }
}

}  // namespace frostmark::test
