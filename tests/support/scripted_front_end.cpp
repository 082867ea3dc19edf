#include "tests/support/scripted_front_end.h"

#include <algorithm>
#include <stdexcept>

namespace frostmark::test {
namespace {

using std::chrono::hours;

constexpr ScriptedFrontEnd::Time kForever = ScriptedFrontEnd::Time::max();

}  // namespace

void ScriptedFrontEnd::Open(ScreenList& screens) { clock_.Watch(screens); }

void ScriptedFrontEnd::Yield() {
  ++yields_;
  if (at_yield_.empty()) return;
  const Action action = std::move(at_yield_.front());
  at_yield_.pop_front();
  action();
}

void ScriptedFrontEnd::Wait() { WaitFor(kForever); }

void ScriptedFrontEnd::WaitFor(Time at_most) {
  ++waits_;
  if (!at_wait_.empty()) {
    const Action action = std::move(at_wait_.front());
    at_wait_.pop_front();
    action();
    return;
  }
  const auto due = clock_.NextDue();
  if (!due && at_most == kForever) {
    throw std::logic_error("the program waits for something that never happens");
  }
  const Time limit = at_most == kForever ? kForever : clock_.Now() + at_most;
  clock_.MoveTo(std::max(clock_.Now(), std::min(due.value_or(limit), limit)));
  clock_.TickOne();
}

void ScriptedFrontEnd::PassTime(Time time) {
  const Time end = clock_.Now() + time;
  for (auto due = clock_.NextDue(); due && *due <= end; due = clock_.NextDue()) {
    clock_.MoveTo(std::max(clock_.Now(), *due));
    clock_.TickOne();
  }
  clock_.MoveTo(std::max(clock_.Now(), end));
}

void ScriptedFrontEnd::SetSinceMidnight(Time time, bool wrap) {
  start_of_clock_ = time - clock_.Now();
  wraps_at_midnight_ = wrap;
}

std::chrono::microseconds ScriptedFrontEnd::SinceMidnight() {
  const Time time = start_of_clock_ + clock_.Now();
  return wraps_at_midnight_ ? time % Time(hours(24)) : time;
}

std::optional<std::string> ScriptedFrontEnd::TakeAnswer() {
  if (answers_.empty()) return std::nullopt;
  std::string answer = std::move(answers_.front());
  answers_.pop_front();
  return answer;
}

Answer ScriptedFrontEnd::ShowBox(const MessageBox& box) {
  boxes_.push_back(box);
  if (box.buttons == BoxButtons::kOk) {
    if (!answers_.empty() && answers_.front() == "ok") answers_.pop_front();
    return Answer::kOk;
  }
  const auto answer = TakeAnswer();
  if (answer == "yes") return Answer::kYes;
  if (answer == "no") return Answer::kNo;
  throw std::logic_error("no yes or no is queued for the box: " + box.text);
}

std::string ScriptedFrontEnd::AskText(const std::string& prompt) {
  prompts_.push_back(prompt);
  const auto answer = TakeAnswer();
  if (!answer) throw std::logic_error("no answer is queued for the question: " + prompt);
  return *answer == "cancel" ? "" : *answer;
}

void ScriptedFrontEnd::OpenWebPage(const std::string& address) { web_pages_.push_back(address); }

void ScriptedFrontEnd::EndProgram() { throw ProgramEnded(); }

}  // namespace frostmark::test
