#pragma once

#include <cstdint>
#include <deque>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "ui/front_end.h"
#include "ui/virtual_clock.h"

namespace frostmark::test {

// A front end that is played by a test: time moves only when it is told to, and boxes are answered
// from a queue. A test plays the user by queueing their doings at the program's
// next yields and waits.
class ScriptedFrontEnd : public FrontEnd {
 public:
  using Time = std::chrono::microseconds;
  using Action = std::function<void()>;

  void Yield() override;
  void Wait() override;
  void WaitFor(Time at_most) override;
  void Open(ScreenList& screens) override;
  Answer ShowBox(const MessageBox& box) override;
  std::string AskText(const std::string& prompt) override;
  void OpenWebPage(const std::string& address) override;
  std::chrono::microseconds SinceMidnight() override;
  [[noreturn]] void EndProgram() override;

  // Queues what the user answers to the next box that needs it: "yes", "no" or "ok", or the text
  // for an input box ("cancel" closes it). A box with one button takes an "ok" but needs none. A
  // question without an answer throws std::logic_error, which fails the test.
  void QueueAnswer(std::string answer) { answers_.push_back(std::move(answer)); }
  void ForgetAnswers() { answers_.clear(); }
  std::size_t LeftOverAnswers() const { return answers_.size(); }

  // Runs ACTION at the next Yield that is not taken by one queued before.
  void AtYield(Action action) { at_yield_.push_back(std::move(action)); }
  // The same for Wait. Without one a Wait lets time pass to the next tick; a Wait for which no tick
  // will ever come throws std::logic_error.
  void AtWait(Action action) { at_wait_.push_back(std::move(action)); }

  // Lets TIME pass, with the ticks that are due in it.
  void PassTime(Time time);
  // Sets the clock; it starts at noon. With WRAP it goes back to 0 at midnight.
  void SetSinceMidnight(Time time, bool wrap);

  // What the program has shown so far.
  const std::vector<MessageBox>& Boxes() const { return boxes_; }
  const std::vector<std::string>& Prompts() const { return prompts_; }
  const std::vector<std::string>& WebPages() const { return web_pages_; }

  std::int64_t Yields() const { return yields_; }
  std::int64_t Waits() const { return waits_; }

 protected:
  void CountYield() { ++yields_; }
  // When the next timer is due, if one is.
  std::optional<Time> NextDue() const { return clock_.NextDue(); }

 private:
  std::optional<std::string> TakeAnswer();

  VirtualClock clock_;
  Time start_of_clock_ = clock_.SinceMidnight();
  bool wraps_at_midnight_ = false;
  std::deque<std::string> answers_;
  std::deque<Action> at_yield_;
  std::deque<Action> at_wait_;
  std::vector<MessageBox> boxes_;
  std::vector<std::string> prompts_;
  std::vector<std::string> web_pages_;
  std::int64_t yields_ = 0;
  std::int64_t waits_ = 0;
};

}  // namespace frostmark::test
