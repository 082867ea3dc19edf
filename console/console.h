#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "console/console_dice.h"
#include "console/console_front_end.h"
#include "console/names.h"
#include "console/options.h"
#include "console/prompt.h"
#include "console/script_stack.h"
#include "console/transcript.h"
#include "program/program.h"

namespace frostmark {

// The text front end: one game, driven by command lines. Run goes through the whole input; while a
// procedure of the game waits, commands run on top of its stack, so the frames between a command
// and the handler that it raises are kept small.
class Console : private ConsoleFrontEnd::Commands {
 public:
  // PRINTED and COMMANDS outlive the console. INTERACTIVE: a person sits in front of it.
  Console(const Options& options, Transcript& printed, ScriptStack& commands, bool interactive);

  // Returns the exit code: 0, 1 (a command was refused, or what is printed reaches nobody) or 3
  // (ended by an error of the game).
  int Run();

  Transcript& transcript;
  ScriptStack& script;
  ConsoleFrontEnd front_end;
  ConsoleDice dice;
  Program program;
  Names names;

 private:
  void BeforeInput() override;
  void BeforeSleep() override;
  void RunNextCommand() override;
  void RunLine(const std::string& line) override;
  void Execute(std::string_view line);
  void RunCommands();

  std::unique_ptr<Prompt> prompt_;  // in front of a person only
};

}  // namespace frostmark
