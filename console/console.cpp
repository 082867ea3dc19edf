#include "console/console.h"

#include <exception>

#include "console/commands.h"
#include "console/refusal.h"

namespace frostmark {
namespace {

ConsoleClock ClockFor(const Options& options, bool interactive) {
  return options.clock.value_or(interactive ? ConsoleClock::kReal : ConsoleClock::kVirtual);
}

}  // namespace

Console::Console(const Options& options, Transcript& printed, ScriptStack& commands,
                 bool interactive)
    : transcript(printed),
      script(commands),
      front_end(printed, commands, ClockFor(options, interactive), interactive),
      dice(printed),
      program(front_end, dice, options.app_path),
      names(program) {
  front_end.SetCommands(this);
  if (interactive) prompt_ = std::make_unique<Prompt>(program, names, transcript, commands);
}

int Console::Run() {
  try {
    RunCommands();
  } catch (const std::exception& error) {
    transcript.Line(std::string("fatal: ") + error.what());
    return 3;
  }
  transcript.Flush();
  return transcript.HasRefused() || !transcript.IsHeard() ? 1 : 0;
}

void Console::RunCommands() {
  try {
    program.Start();
    for (;;) front_end.Step();
  } catch (const ConsoleEnded&) {
  } catch (const ProgramEnded&) {
  }
}

void Console::BeforeInput() {
  if (prompt_ && !script.AboveInput()) prompt_->Refresh();
}

void Console::BeforeSleep() {
  if (prompt_) prompt_->ShowStatus();
}

void Console::RunNextCommand() {
  std::string line;
  if (!transcript.IsHeard() || !script.ReadLine(line)) throw ConsoleEnded();
  if (prompt_ && !prompt_->Translate(line)) return;
  RunLine(line);
}

void Console::RunLine(const std::string& line) {
  try {
    Execute(line);
  } catch (const Refusal& refusal) {
    transcript.Refuse(refusal.reason);
  }
}

void Console::Execute(std::string_view line) {
  Words words(line);
  if (words.AtEnd() || words.Peek() == '#') return;
  const Command* command = nullptr;
  {
    const std::string name = words.Next("a command");
    command = FindCommand(name);
    if (command == nullptr) throw Refusal{name + " is no command"};
  }
  command->run(*this, words);
}

}  // namespace frostmark
