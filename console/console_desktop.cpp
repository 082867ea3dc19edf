#include "console/console_desktop.h"

#include <algorithm>
#include <ctime>
#include <thread>
#include <utility>

namespace frostmark {
namespace {

using Time = HeadlessDesktop::Time;

constexpr Time kMostWaiting = std::chrono::seconds(3600);
// With the real clock, how many yields pass between two looks at the timers.
constexpr int kYieldsBetweenLooks = 1024;

Time SinceStart() {
  static const auto start = std::chrono::steady_clock::now();
  return std::chrono::duration_cast<Time>(std::chrono::steady_clock::now() - start);
}

}  // namespace

ConsoleDesktop::ConsoleDesktop(Transcript& transcript, ScriptStack& script, ConsoleClock clock,
                               bool interactive)
    : transcript_(transcript),
      script_(script),
      real_(clock == ConsoleClock::kReal),
      interactive_(interactive),
      attentive_(real_) {
  SyncClock();
}

void ConsoleDesktop::SyncClock() {
  if (real_) MoveTo(SinceStart());
}

Time ConsoleDesktop::SinceMidnight() {
  if (!real_) return HeadlessDesktop::SinceMidnight();
  timespec now{};
  clock_gettime(CLOCK_REALTIME, &now);
  tm local{};
  localtime_r(&now.tv_sec, &local);
  return std::chrono::hours(local.tm_hour) + std::chrono::minutes(local.tm_min) +
         std::chrono::seconds(local.tm_sec) + Time(now.tv_nsec / 1000);
}

void ConsoleDesktop::OpenWebPage(const std::string& address) {
  transcript_.Line("open: " + address);
}

void ConsoleDesktop::RunAtYield(std::string_view line) {
  yield_lines_.emplace_back(line);
  attentive_ = true;
}

void ConsoleDesktop::AttendToYield() {
  if (!yield_lines_.empty()) {
    const std::string line = std::move(yield_lines_.front());
    yield_lines_.pop_front();
    attentive_ = real_ || !yield_lines_.empty();
    commands_->RunLine(line);
  } else if (--yields_to_pass_ < 0) {
    yields_to_pass_ = kYieldsBetweenLooks;
    SyncClock();
    Timers().TickOne();
  }
}

void ConsoleDesktop::WaitFor(Time at_most) {
  CountWait();
  SyncClock();
  Step(at_most == Time::max() ? at_most : Now() + at_most);
}

void ConsoleDesktop::Step(Time limit) {
  SyncClock();
  if (time_passes_) {
    PassTime(limit);
  } else if (real_) {
    WaitForCommand(limit);
  } else {
    commands_->BeforeInput();
    if (!script_.HasLine()) transcript_.Flush();
    commands_->RunNextCommand();
  }
}

void ConsoleDesktop::LetTimePass(Time time) {
  SyncClock();
  time_passes_ = true;
  passes_until_ = Now() + time;
  condition_ = nullptr;
}

void ConsoleDesktop::LetTimePassUntil(std::function<bool()> condition, std::string what) {
  LetTimePass(kMostWaiting);
  condition_ = std::move(condition);
  condition_text_ = std::move(what);
}

void ConsoleDesktop::PassTime(Time limit) {
  if (condition_ && condition_()) {
    time_passes_ = false;
    return;
  }
  // A waiter whose time comes at the very end of the wait goes on before the next command is read.
  const bool waiter_first = limit > Now() && limit <= passes_until_;
  SleepUntil(std::min({passes_until_, limit, Timers().NextDue().value_or(limit)}));
  if (Timers().TickOne() || waiter_first || Now() < passes_until_) return;
  time_passes_ = false;
  if (condition_) transcript_.Refuse(condition_text_ + " did not come true within an hour");
}

void ConsoleDesktop::SleepUntil(Time time) {
  if (time <= Now()) return;
  if (real_) {
    commands_->BeforeSleep();
    transcript_.Flush();
    std::this_thread::sleep_for(time - Now());
    SyncClock();
  } else {
    MoveTo(time);
  }
}

void ConsoleDesktop::WaitForCommand(Time limit) {
  commands_->BeforeInput();
  if (!script_.HasLine()) {
    transcript_.Flush();
    const Time end = std::min(limit, Timers().NextDue().value_or(limit));
    const Time at_most = end == Time::max() ? end : std::max(Time(0), end - Now());
    if (!script_.WaitForInput(at_most)) {
      SyncClock();
      Timers().TickOne();
      return;
    }
  }
  commands_->RunNextCommand();
}

}  // namespace frostmark
