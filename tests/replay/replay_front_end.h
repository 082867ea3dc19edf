#pragma once

#include <deque>
#include <random>
#include <string>
#include <vector>

#include "tests/reference/reference_game.h"
#include "tests/support/scripted_front_end.h"

namespace frostmark {
class ListBox;
class Program;
}  // namespace frostmark

namespace frostmark::test {

// The user of a replay: watches games to the end, takes the turn in the draft by whim, and for
// the rest does what the test has queued. A press can stay open permanently (a team that has moved
// leagues is looked for where it was), so that what they do next must be done inside its wait.
class ReplayFrontEnd : public ScriptedFrontEnd {
 public:
  explicit ReplayFrontEnd(std::uint64_t seed) : whim_(seed) {}

  void Play(Program& program) { program_ = &program; }

  // Queues what the user does, and runs all that is queued. A step may queue more.
  void Then(Action step) { steps_.push_back(std::move(step)); }
  void RunSteps();

  void Wait() override;
  Answer ShowBox(const MessageBox& box) override;
  std::string AskText(const std::string& prompt) override;

  // All boxes and questions since the last call: "stop ok: You are missing a position!".
  reference::Lines TakeBoxes();

  // While it is set, the user does this instead of watching a franchise game.
  Action instead_of_watching;

  // What the user answered unasked since the test last emptied it.
  std::deque<std::string> own_answers;
  // What the user chose in the draft since the test last emptied them.
  std::deque<reference::DraftChoice> releases;
  std::deque<reference::DraftChoice> picks;

 private:
  bool WatchGame();
  bool TakeDraftTurn();
  reference::DraftChoice DoubleClickSomewhere(ListBox& list);
  void RunOneStep();

  Program* program_ = nullptr;
  std::mt19937_64 whim_;
  std::deque<Action> steps_;
  reference::Lines told_;
};

}  // namespace frostmark::test
