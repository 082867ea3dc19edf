#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "console/words.h"

namespace frostmark {

class Console;
class Control;

// One command of the console: its name, what follows it on its line, what it does, as a person
// reads it, and the doing itself, which throws Refusal when it cannot be done.
struct Command {
  std::string_view name;
  std::string_view arguments;
  std::string_view does;
  void (*run)(Console& console, Words& words);
};

// action_commands.cpp: what a person does with mouse and keyboard, and the same from outside.
std::span<const Command> ActionCommands();
// question_commands.cpp: what prints something and changes nothing.
std::span<const Command> QuestionCommands();
// session_commands.cpp: time, answers, rolls, lists, variables and the console itself.
std::span<const Command> SessionCommands();
// script_commands.cpp: what reads other lines.
std::span<const Command> ScriptCommands();

// All of them, group by group.
std::vector<const Command*> AllCommands();

// The command called NAME, or nullptr.
const Command* FindCommand(std::string_view name);

// "click NAME: presses a button, ..."
std::string Explained(const Command& command);

// Throws Refusal when no person can get at CONTROL at this moment.
void CheckReach(const Control& control);

}  // namespace frostmark
