#include "console/commands.h"

#include "console/refusal.h"
#include "ui/screen.h"

namespace frostmark {

std::vector<const Command*> AllCommands() {
  std::vector<const Command*> all;
  for (const auto group :
       {ActionCommands(), QuestionCommands(), SessionCommands(), ScriptCommands()}) {
    for (const Command& command : group) all.push_back(&command);
  }
  return all;
}

const Command* FindCommand(std::string_view name) {
  for (const auto group :
       {ActionCommands(), QuestionCommands(), SessionCommands(), ScriptCommands()}) {
    for (const Command& command : group) {
      if (command.name == name) return &command;
    }
  }
  return nullptr;
}

std::string Explained(const Command& command) {
  std::string text(command.name);
  if (!command.arguments.empty()) text.append(" ").append(command.arguments);
  return text.append(": ").append(command.does);
}

void CheckReach(const Control& control) {
  if (!control.OnView()) throw Refusal{control.FullName() + " is hidden"};
  if (control.Outside()) throw Refusal{control.FullName() + " is outside the visible area"};
  if (!control.Enabled()) throw Refusal{control.FullName() + " is disabled"};
}

}  // namespace frostmark
