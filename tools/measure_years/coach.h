#pragma once

#include <cstdint>
#include <string>

#include "program/program.h"
#include "tests/support/scripted_front_end.h"
#include "tests/support/seeded_dice.h"

namespace frostmark {

// A user who never tires, on a desktop whose clock runs as fast as they do. Each season the best
// player of a position leads and the other trains; in the draft they let the weakest player go and
// take the best of the pool.
class Coach : public test::ScriptedFrontEnd {
 public:
  Coach(std::uint64_t seed, const std::string& app_path)
      : dice_(seed), program_(*this, dice_, app_path) {}

  // Makes a new world and begins in "Rank F" with a rolled team.
  void BeginFranchise();
  // From "Week 1" by "Sim", the results and the draft to the next "Week 1".
  void PlayYear();

  Program& program() { return program_; }

  void Wait() override;
  void WaitFor(Time at_most) override { PassTime(at_most); }
  Answer ShowBox(const MessageBox& box) override;
  std::string AskText(const std::string& prompt) override;

 private:
  // Leaves a press that waits permanently for the file of an opponent who has moved. All that the
  // press had to do is done by then.
  struct PressLeftOpen {};

  void SetLines();
  void TakeTurnInDraft();

  test::SeededDice dice_;
  Program program_;
};

}  // namespace frostmark
