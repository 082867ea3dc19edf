#include "ui/headless_desktop.h"

#include <algorithm>
#include <stdexcept>

namespace frostmark {
namespace {

using std::chrono::hours;

constexpr HeadlessDesktop::Time kForever = HeadlessDesktop::Time::max();

}  // namespace

HeadlessDesktop::HeadlessDesktop() : start_of_clock_(hours(12)), timers_([this] { return now_; }) {}

void HeadlessDesktop::Open(ScreenList& screens) { timers_.Watch(screens); }

bool HeadlessDesktop::RunAtYield() {
  if (at_yield_.empty()) return false;
  const Action action = std::move(at_yield_.front());
  at_yield_.pop_front();
  action();
  return true;
}

void HeadlessDesktop::Yield() {
  ++yields_;
  if (!at_yield_.empty()) RunAtYield();
}

void HeadlessDesktop::Wait() { WaitFor(kForever); }

void HeadlessDesktop::WaitFor(Time at_most) {
  ++waits_;
  if (!at_wait_.empty()) {
    const Action action = std::move(at_wait_.front());
    at_wait_.pop_front();
    action();
    return;
  }
  const auto due = timers_.NextDue();
  if (!due && at_most == kForever) {
    throw std::logic_error("the program waits for something that never happens");
  }
  const Time limit = at_most == kForever ? kForever : now_ + at_most;
  now_ = std::max(now_, std::min(due.value_or(limit), limit));
  timers_.TickOne();
}

void HeadlessDesktop::PassTime(Time time) {
  const Time end = now_ + time;
  for (auto due = timers_.NextDue(); due && *due <= end; due = timers_.NextDue()) {
    now_ = std::max(now_, *due);
    timers_.TickOne();
  }
  now_ = std::max(now_, end);
}

void HeadlessDesktop::SetSinceMidnight(Time time, bool wrap) {
  start_of_clock_ = time - now_;
  wraps_at_midnight_ = wrap;
}

std::chrono::microseconds HeadlessDesktop::SinceMidnight() {
  const Time time = start_of_clock_ + now_;
  return wraps_at_midnight_ ? time % Time(hours(24)) : time;
}

std::optional<std::string> HeadlessDesktop::TakeAnswer() {
  if (answers_.empty()) return std::nullopt;
  std::string answer = std::move(answers_.front());
  answers_.pop_front();
  return answer;
}

Answer HeadlessDesktop::ShowBox(const MessageBox& box) {
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

std::string HeadlessDesktop::AskText(const std::string& prompt) {
  prompts_.push_back(prompt);
  const auto answer = TakeAnswer();
  if (!answer) throw std::logic_error("no answer is queued for the question: " + prompt);
  return *answer == "cancel" ? "" : *answer;
}

void HeadlessDesktop::OpenWebPage(const std::string& address) { web_pages_.push_back(address); }

void HeadlessDesktop::EndProgram() { throw ProgramEnded(); }

}  // namespace frostmark
