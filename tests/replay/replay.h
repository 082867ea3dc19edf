#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>

#include "program/program.h"
#include "tests/reference/reference_game.h"
#include "tests/replay/replay_front_end.h"
#include "tests/support/scripted_dice.h"
#include "tests/support/temporary_world.h"

namespace frostmark::test {

// One program in a fresh folder beside the reference. Each thing that the user does is done in the
// program, then in the reference with the same rolls; then everything that both know must be equal:
// files, lists, captions, variables, boxes.
class Replay {
 public:
  explicit Replay(std::uint64_t seed);
  Replay(const Replay&) = delete;
  Replay& operator=(const Replay&) = delete;

  using InProgram = std::function<void(Program&)>;
  using InReference = std::function<void(reference::ReferenceGame&)>;

  // Queues a doing of the user, called WHAT in messages, and the comparison after it.
  void Do(const std::string& what, InProgram in_program, InReference in_reference);
  // Queues an answer to a box, for both.
  void Answer(const std::string& answer);
  // Does all that is queued.
  void Run() { front_end_.RunSteps(); }
  // Puts a file, or a team's file, into the folder and before the reference.
  void PutFile(const std::string& path, const std::string& content);
  void PutTeam(const std::string& rank, const std::string& team, const reference::Lines& roster);
  // Ends the program and starts it again on the same files, with the same reference files.
  void Restart();

  Program& program() { return *program_; }
  reference::ReferenceGame& reference() { return *reference_; }
  ReplayFrontEnd& front_end() { return front_end_; }
  ScriptedDice& dice() { return dice_; }
  const std::string& AppPath() const { return world_.path(); }
  // Whether a comparison has failed, or the program has ended by an error as the rules want it.
  // What is queued is then passed over.
  bool Over() const { return over_; }

 private:
  void Follow(const std::string& what, const InReference& in_reference);
  bool RulesEndToo(const InReference& in_reference);
  void Compare(const std::string& what);
  void Fail(const std::string& what, const std::string& difference);

  std::uint64_t seed_;
  TemporaryWorld world_;
  ScriptedDice dice_;
  ReplayFrontEnd front_end_;
  std::unique_ptr<Program> program_;
  std::unique_ptr<reference::ReferenceGame> reference_;
  std::optional<std::string> fatal_;
  bool over_ = false;
};

}  // namespace frostmark::test
