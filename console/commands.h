#pragma once

#include <span>
#include <string_view>

#include "console/words.h"

namespace frostmark {

class Console;
class Control;

// One command of the console: its name and what it does with the rest of its line. It throws
// Refusal when it cannot do it.
struct Command {
  std::string_view name;
  void (*run)(Console& console, Words& words);
};

// action_commands.cpp: what a person does with mouse and keyboard, and the same from outside.
std::span<const Command> ActionCommands();
// question_commands.cpp: what prints something and changes nothing.
std::span<const Command> QuestionCommands();
// session_commands.cpp: time, answers, rolls, lists, variables and the console itself.
std::span<const Command> SessionCommands();

// The command called NAME, or nullptr.
const Command* FindCommand(std::string_view name);

// Throws Refusal when no person can get at CONTROL at this moment.
void CheckReach(const Control& control);

}  // namespace frostmark
