#pragma once

#include <cstdint>
#include <random>
#include <string>
#include <vector>

#include "program/program.h"
#include "tests/support/scripted_front_end.h"

namespace frostmark::test {

// Thrown when the user has had enough, from any depth. No std::exception, like the program's end.
struct RoundOver {};

// A user who clicks, selects, types and answers at random, also while a procedure yields or waits.
// What they do follows from the seed alone.
class RandomUser : public ScriptedFrontEnd {
 public:
  // ACTS: how many things they do before they have had enough.
  RandomUser(std::uint32_t seed, int acts);

  void Use(Program& program) { program_ = &program; }

  // Acts until they have had enough. Does not return.
  [[noreturn]] void ActOn();

  void Yield() override;
  void WaitFor(Time at_most) override;
  Answer ShowBox(const MessageBox& box) override;
  std::string AskText(const std::string& prompt) override;

  int Deepest() const { return deepest_; }
  // The last things done, newest last, each after the depth of nesting: "3 Franchise.Command2".
  std::string LastActs() const;

 private:
  // How deep acts may nest: each stands on the stack of the one before.
  static constexpr int kDeepest = 40;

  int Up(int n) { return static_cast<int>(random_() % static_cast<std::uint32_t>(n)); }
  bool OneIn(int n) { return Up(n) == 0; }
  void ActIfItSuits(int one_in);
  void Act();
  void ActOnScreen(Screen& screen);
  void ActOnControl(Control& control);
  void ActOnList(ListBox& list);
  void CloseWindow(Screen& screen);
  void Note(const std::string& act);

  Program* program_ = nullptr;
  std::mt19937 random_;
  int acts_left_;
  int yields_left_;
  int one_yield_in_;
  int depth_ = 0;
  int deepest_ = 0;
  std::vector<std::string> acts_;
};

}  // namespace frostmark::test
