#pragma once

#include <memory>
#include <string>

#include "program/program.h"
#include "records/dice.h"
#include "tests/support/scripted_front_end.h"
#include "tests/support/temporary_world.h"

namespace frostmark {

// A game in a temporary folder of its own, with the user's team in "Rank F" and its first week
// ahead.
class WorldForBench {
 public:
  WorldForBench();

  const std::string& Folder() const { return folder_.path(); }
  test::ScriptedFrontEnd& front_end() { return front_end_; }
  Program& program() { return *program_; }

  // Plays the games of one week, whatever it is, without watching any.
  void PlayOneWeek();

 private:
  test::TemporaryWorld folder_;
  test::ScriptedFrontEnd front_end_;
  ClockDice dice_;
  std::unique_ptr<Program> program_;
};

}  // namespace frostmark
