#include "tests/replay/replay_front_end.h"

#include <stdexcept>
#include <utility>

#include "program/program.h"

namespace frostmark::test {

namespace {

std::string Told(const MessageBox& box) {
  const char* icon = "none";
  if (box.icon == BoxIcon::kStop) icon = "stop";
  if (box.icon == BoxIcon::kInformation) icon = "information";
  if (box.icon == BoxIcon::kQuestion) icon = "question";
  const char* buttons = box.buttons == BoxButtons::kOk ? " ok: " : " yes no: ";
  return icon + std::string(buttons) + box.text;
}

// Thrown by the last step to leave presses that never come back.
struct StepsDone {};

}  // namespace

void ReplayFrontEnd::RunSteps() {
  try {
    while (!steps_.empty()) RunOneStep();
  } catch (const StepsDone&) {
  }
}

void ReplayFrontEnd::RunOneStep() {
  if (steps_.empty()) throw StepsDone();
  const Action step = std::move(steps_.front());
  steps_.pop_front();
  step();
}

void ReplayFrontEnd::Wait() {
  if (WatchGame() || TakeDraftTurn()) return;
  RunOneStep();
}

bool ReplayFrontEnd::WatchGame() {
  Game& game = program_->game;
  if (!game.FranchiseMatch) return false;
  if (instead_of_watching) {
    instead_of_watching();
  } else if (game.HighButton1.OnView()) {
    game.HighButton1.Click();
  } else if (game.HighButton2.OnView()) {
    game.HighButton2.Click();
  } else {
    ScriptedFrontEnd::Wait();
  }
  return true;
}

bool ReplayFrontEnd::TakeDraftTurn() {
  FDraft& draft = program_->f_draft;
  if (!draft.AwaitingPick) return false;
  if (program_->f_select_draft.Visible()) {
    releases.push_back(DoubleClickSomewhere(program_->f_select_draft.List1));
    return true;
  }
  for (ListPair* pool : draft.Pool()) {
    if (!pool->shown.Enabled()) continue;
    picks.push_back(DoubleClickSomewhere(pool->shown));
    return true;
  }
  throw std::logic_error("the draft waits for the user and opens no list");
}

reference::DraftChoice ReplayFrontEnd::DoubleClickSomewhere(ListBox& list) {
  const reference::DraftChoice choice = {
      static_cast<int>(whim_() % static_cast<unsigned>(list.ListCount())), whim_() % 4 != 0};
  QueueAnswer(choice.sure ? "yes" : "no");
  list.DoubleClick(choice.index);
  return choice;
}

Answer ReplayFrontEnd::ShowBox(const MessageBox& box) {
  told_.push_back(Told(box));
  const bool about_line_up = box.text.starts_with("You have too many players");
  if (about_line_up && LeftOverAnswers() == 0) {
    QueueAnswer("no");
    own_answers.push_back("no");
  }
  return ScriptedFrontEnd::ShowBox(box);
}

std::string ReplayFrontEnd::AskText(const std::string& prompt) {
  told_.push_back("ask: " + prompt);
  return ScriptedFrontEnd::AskText(prompt);
}

reference::Lines ReplayFrontEnd::TakeBoxes() { return std::exchange(told_, {}); }

}  // namespace frostmark::test
