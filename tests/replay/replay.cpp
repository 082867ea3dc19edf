#include "tests/replay/replay.h"

#include <gtest/gtest.h>

#include <span>
#include <utility>

#include "records/runtime_error.h"
#include "tests/replay/differences.h"
#include "world/name_lists.h"

namespace frostmark::test {

namespace {

reference::Lines LinesOf(std::span<const char* const> names) {
  return {names.begin(), names.end()};
}

}  // namespace

Replay::Replay(std::uint64_t seed) : seed_(seed), dice_(seed), front_end_(seed) { Restart(); }

void Replay::Restart() {
  program_.reset();
  program_ = std::make_unique<Program>(front_end_, dice_, AppPath());
  front_end_.Play(*program_);
  program_->Start();
  auto fresh = std::make_unique<reference::ReferenceGame>(AppPath(), LinesOf(GivenNames()),
                                                          LinesOf(FamilyNames()));
  if (reference_ != nullptr) fresh->shelf = reference_->shelf;
  reference_ = std::move(fresh);
}

void Replay::PutTeam(const std::string& rank, const std::string& team,
                     const reference::Lines& roster) {
  PutFile(reference_->TeamPath(rank, team), JoinLines(roster));
}

void Replay::PutFile(const std::string& path, const std::string& content) {
  reference_->shelf.files[path] = content;
  WriteText(path, content);
}

void Replay::Do(const std::string& what, InProgram in_program, InReference in_reference) {
  front_end_.Then([this, in_program] {
    if (over_) return;
    try {
      in_program(*program_);
    } catch (const RuntimeError& error) {
      fatal_ = error.what();
    }
  });
  front_end_.Then([this, what, in_reference] {
    if (!over_) Follow(what, in_reference);
  });
}

void Replay::Answer(const std::string& answer) {
  front_end_.Then([this, answer] {
    front_end_.QueueAnswer(answer);
    reference_->answers.push_back(answer);
  });
}

void Replay::Follow(const std::string& what, const InReference& in_reference) {
  for (const RollPair& roll : dice_.Take()) reference_->rolls.Append({roll.n, roll.result});
  reference_->boxes.clear();
  for (; !front_end_.own_answers.empty(); front_end_.own_answers.pop_front()) {
    reference_->answers.push_back(front_end_.own_answers.front());
  }
  std::swap(reference_->releases, front_end_.releases);
  std::swap(reference_->picks, front_end_.picks);
  try {
    const bool rules_end = RulesEndToo(in_reference);
    if (rules_end && !fatal_) Fail(what, "the rules end the program, and it goes on");
    if (!rules_end && fatal_) Fail(what, "the program ends: " + *fatal_);
    Compare(what);
    if (rules_end) over_ = true;
  } catch (const reference::Divergence& divergence) {
    Fail(what, divergence.what);
  }
}

bool Replay::RulesEndToo(const InReference& in_reference) {
  try {
    in_reference(*reference_);
    return false;
  } catch (const reference::Fatal&) {
    return true;
  }
}

void Replay::Compare(const std::string& what) {
  if (reference_->rolls.Left() > 0) {
    Fail(what, "the game made " + std::to_string(reference_->rolls.Left()) + " rolls too many");
  }
  const reference::Lines told = front_end_.TakeBoxes();
  if (told != reference_->boxes) {
    Fail(what, "the boxes of the program:\n  " + reference::JoinWith(told, '\n') +
                   "\nand of the reference:\n  " + reference::JoinWith(reference_->boxes, '\n'));
  }
  const std::string difference = FirstDifference(*program_, *reference_);
  if (!difference.empty()) Fail(what, difference);
  const std::string file_difference = FirstFileDifference(AppPath(), *reference_);
  if (!file_difference.empty()) Fail(what, file_difference);
}

void Replay::Fail(const std::string& what, const std::string& difference) {
  over_ = true;
  ADD_FAILURE() << "seed " << seed_ << ", after " << what << ":\n" << difference;
}

}  // namespace frostmark::test
