#pragma once

#include <deque>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "console/options.h"
#include "console/script_stack.h"
#include "console/transcript.h"
#include "ui/headless_desktop.h"

namespace frostmark {

// Thrown from wherever the program waits when the script is over or says "exit".
struct ConsoleEnded {};

// The desktop behind the console. A waiting program is answered by commands; time moves when a
// command lets it pass (virtual clock) or by itself (real clock). The one important call is Step,
// which does the next thing that happens to a program that has nothing to do.
class ConsoleDesktop : public HeadlessDesktop {
 public:
  // The command loop, as this desktop sees it.
  class Commands {
   public:
    Commands() = default;
    Commands(const Commands&) = delete;
    Commands& operator=(const Commands&) = delete;
    virtual ~Commands() = default;
    // A command may come now: called before input is waited for, again and again.
    virtual void BeforeInput() = 0;
    // Time is about to pass by itself.
    virtual void BeforeSleep() = 0;
    // Reads a command and runs it. Throws ConsoleEnded behind the last one.
    virtual void RunNextCommand() = 0;
    virtual void RunLine(const std::string& line) = 0;
  };

  ConsoleDesktop(Transcript& transcript, ScriptStack& script, ConsoleClock clock, bool interactive);
  void SetCommands(Commands* commands) { commands_ = commands; }

  // One step of time that passes, or of waiting for a command: a tick, a command, or a moment that
  // somebody waits for. Returns at LIMIT at the latest where time passes.
  void Step(Time limit = Time::max());

  // From now on each step lets time pass, until TIME is over.
  void LetTimePass(Time time);
  // The same until CONDITION holds. Refused, naming WHAT, after an hour.
  void LetTimePassUntil(std::function<bool()> condition, std::string what);

  // Runs LINE at a yield, behind those queued before.
  void RunAtYield(std::string_view line);

  // console_desktop.cpp
  void Yield() override {
    CountYield();
    if (attentive_) AttendToYield();
  }
  void Wait() override { WaitFor(Time::max()); }
  void WaitFor(Time at_most) override;
  Time SinceMidnight() override;
  void OpenWebPage(const std::string& address) override;

  // boxes.cpp
  Answer ShowBox(const MessageBox& box) override;
  std::string AskText(const std::string& prompt) override;

 private:
  void AttendToYield();
  void PassTime(Time limit);
  void SleepUntil(Time time);
  void SyncClock();
  void WaitForCommand(Time limit);

  void PrintBox(std::string_view text);
  std::optional<std::string> AskPerson(const char* prompt);
  Answer AskPersonBox();

  Transcript& transcript_;
  ScriptStack& script_;
  const bool real_;
  const bool interactive_;
  Commands* commands_ = nullptr;

  bool attentive_;  // whether a yield may have anything to do
  int yields_to_pass_ = 0;
  std::deque<std::string> yield_lines_;

  bool time_passes_ = false;
  Time passes_until_{};
  std::function<bool()> condition_;
  std::string condition_text_;
};

}  // namespace frostmark
