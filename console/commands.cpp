#include "console/commands.h"

#include "console/refusal.h"
#include "ui/screen.h"

namespace frostmark {

const Command* FindCommand(std::string_view name) {
  for (const auto commands : {ActionCommands(), QuestionCommands(), SessionCommands()}) {
    for (const Command& command : commands) {
      if (command.name == name) return &command;
    }
  }
  return nullptr;
}

void CheckReach(const Control& control) {
  if (!control.OnView()) throw Refusal{control.FullName() + " is hidden"};
  if (control.Outside()) throw Refusal{control.FullName() + " is outside the visible area"};
  if (!control.Enabled()) throw Refusal{control.FullName() + " is disabled"};
}

}  // namespace frostmark
