#pragma once

#include <cstdint>
#include <deque>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

#include "console/options.h"
#include "console/script_stack.h"
#include "console/transcript.h"
#include "ui/front_end.h"
#include "ui/virtual_clock.h"

namespace frostmark {

// Thrown from wherever the program waits when the script is over or says "exit".
struct ConsoleEnded {};

// The front end of the console. A waiting program is answered by commands; time moves when a
// command lets it pass (virtual clock) or by itself (real clock). The one important call is Step,
// which does the next thing that happens to a program that has nothing to do.
class ConsoleFrontEnd : public FrontEnd {
 public:
  using Time = VirtualClock::Time;

  // The command loop, as this front end sees it.
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
    // Reads a command and runs it. Throws ConsoleEnded after the last one.
    virtual void RunNextCommand() = 0;
    virtual void RunLine(const std::string& line) = 0;
  };

  ConsoleFrontEnd(Transcript& transcript, ScriptStack& script, ConsoleClock clock,
                  bool interactive);
  void SetCommands(Commands* commands) { commands_ = commands; }

  // One step of time that passes, or of waiting for a command: a tick, a command, or a moment that
  // somebody waits for. Returns at LIMIT at the latest where time passes.
  void Step(Time limit = Time::max());

  // From now on each step lets time pass, until TIME is over.
  void LetTimePass(Time time);
  // The same until CONDITION holds. Refused, naming WHAT, after an hour.
  void LetTimePassUntil(std::function<bool()> condition, std::string what);

  // Runs LINE at a yield, after those queued before.
  void RunAtYield(std::string_view line);

  // Queues what the person answers to the next box that needs it: "yes", "no" or "ok", or the text
  // for an input box ("cancel" closes it). A box with one button takes an "ok" but needs none.
  void QueueAnswer(std::string answer) { answers_.push_back(std::move(answer)); }
  void ForgetAnswers() { answers_.clear(); }

  // How often the program has given way since its start.
  std::int64_t Yields() const { return yields_; }
  std::int64_t Waits() const { return waits_; }

  // console_front_end.cpp
  void Open(ScreenList& screens) override { clock_.Watch(screens); }
  void Yield() override {
    ++yields_;
    if (attentive_) AttendToYield();
  }
  void Wait() override { WaitFor(Time::max()); }
  void WaitFor(Time at_most) override;
  Time SinceMidnight() override;
  void OpenWebPage(const std::string& address) override;
  [[noreturn]] void EndProgram() override { throw ProgramEnded(); }

  // boxes.cpp
  Answer ShowBox(const MessageBox& box) override;
  std::string AskText(const std::string& prompt) override;

 private:
  void AttendToYield();
  void PassTime(Time limit);
  void SleepUntil(Time time);
  void SyncClock();
  void WaitForCommand(Time limit);

  std::optional<std::string> TakeAnswer();
  void PrintBox(std::string_view text);
  std::optional<std::string> AskPerson(const char* prompt);
  Answer AskPersonBox();

  Transcript& transcript_;
  ScriptStack& script_;
  const bool real_;
  const bool interactive_;
  Commands* commands_ = nullptr;

  VirtualClock clock_;
  std::deque<std::string> answers_;
  std::int64_t yields_ = 0;
  std::int64_t waits_ = 0;

  bool attentive_;  // whether a yield may have anything to do
  int yields_to_pass_ = 0;
  std::deque<std::string> yield_lines_;

  bool time_passes_ = false;
  Time passes_until_{};
  std::function<bool()> condition_;
  std::string condition_text_;
};

}  // namespace frostmark
