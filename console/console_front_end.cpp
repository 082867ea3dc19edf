#include "console/console_front_end.h"

#include <algorithm>
#include <ctime>
#include <thread>
#include <utility>

namespace frostmark {
namespace {

using Time = ConsoleFrontEnd::Time;

constexpr Time kMostWaiting = std::chrono::seconds(3600);
// With the real clock, how many yields pass between two looks at the timers.
constexpr int kYieldsBetweenLooks = 1024;

Time SinceStart() {
  static const auto start = std::chrono::steady_clock::now();
  return std::chrono::duration_cast<Time>(std::chrono::steady_clock::now() - start);
}

}  // namespace

ConsoleFrontEnd::ConsoleFrontEnd(Transcript& transcript, ScriptStack& script, ConsoleClock clock,
                                 bool interactive)
    : transcript_(transcript),
      script_(script),
      real_(clock == ConsoleClock::kReal),
      interactive_(interactive),
      attentive_(real_) {
  SyncClock();
}

void ConsoleFrontEnd::SyncClock() {
  if (real_) clock_.MoveTo(SinceStart());
}

Time ConsoleFrontEnd::SinceMidnight() {
  if (!real_) return clock_.SinceMidnight();
  timespec now{};
  clock_gettime(CLOCK_REALTIME, &now);
  tm local{};
  localtime_r(&now.tv_sec, &local);
  return std::chrono::hours(local.tm_hour) + std::chrono::minutes(local.tm_min) +
         std::chrono::seconds(local.tm_sec) + Time(now.tv_nsec / 1000);
}

void ConsoleFrontEnd::OpenWebPage(const std::string& address) {
  transcript_.Line("open: " + address);
}

void ConsoleFrontEnd::RunAtYield(std::string_view line) {
  yield_lines_.emplace_back(line);
  attentive_ = true;
}

void ConsoleFrontEnd::AttendToYield() {
  if (!yield_lines_.empty()) {
    const std::string line = std::move(yield_lines_.front());
    yield_lines_.pop_front();
    attentive_ = real_ || !yield_lines_.empty();
    commands_->RunLine(line);
  } else if (--yields_to_pass_ < 0) {
    yields_to_pass_ = kYieldsBetweenLooks;
    SyncClock();
    clock_.TickOne();
  }
}

void ConsoleFrontEnd::WaitFor(Time at_most) {
  ++waits_;
  SyncClock();
  Step(at_most == Time::max() ? at_most : clock_.Now() + at_most);
}

void ConsoleFrontEnd::Step(Time limit) {
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

void ConsoleFrontEnd::LetTimePass(Time time) {
  SyncClock();
  time_passes_ = true;
  passes_until_ = clock_.Now() + time;
  condition_ = nullptr;
}

void ConsoleFrontEnd::LetTimePassUntil(std::function<bool()> condition, std::string what) {
  LetTimePass(kMostWaiting);
  condition_ = std::move(condition);
  condition_text_ = std::move(what);
}

void ConsoleFrontEnd::PassTime(Time limit) {
  if (condition_ && condition_()) {
    time_passes_ = false;
    return;
  }
  // A waiter whose time comes at the very end of the wait goes on before the next command is read.
  const bool waiter_first = limit > clock_.Now() && limit <= passes_until_;
  SleepUntil(std::min({passes_until_, limit, clock_.NextDue().value_or(limit)}));
  if (clock_.TickOne() || waiter_first || clock_.Now() < passes_until_) return;
  time_passes_ = false;
  if (condition_) transcript_.Refuse(condition_text_ + " did not come true within an hour");
}

void ConsoleFrontEnd::SleepUntil(Time time) {
  if (time <= clock_.Now()) return;
  if (real_) {
    commands_->BeforeSleep();
    transcript_.Flush();
    std::this_thread::sleep_for(time - clock_.Now());
    SyncClock();
  } else {
    clock_.MoveTo(time);
  }
}

void ConsoleFrontEnd::WaitForCommand(Time limit) {
  commands_->BeforeInput();
  if (!script_.HasLine()) {
    transcript_.Flush();
    const Time end = std::min(limit, clock_.NextDue().value_or(limit));
    const Time at_most = end == Time::max() ? end : std::max(Time(0), end - clock_.Now());
    if (!script_.WaitForInput(at_most)) {
      SyncClock();
      clock_.TickOne();
      return;
    }
  }
  commands_->RunNextCommand();
}

}  // namespace frostmark
