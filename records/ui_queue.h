#pragma once

#include <chrono>

namespace frostmark {

// How the one thread gives way to the user. Long procedures stay on the stack and call Yield inside
// their loops; a procedure that has to be answered before it can go on calls Wait. Any handler of
// any screen may run in either call, so no reference into a list may be held across one.
class UiQueue {
 public:
  UiQueue() = default;
  UiQueue(const UiQueue&) = delete;
  UiQueue& operator=(const UiQueue&) = delete;
  virtual ~UiQueue() = default;

  // Lets pending events and timer ticks run and returns at once. Called thousands of times a game.
  virtual void Yield() = 0;

  // Blocks until an event or a timer tick has been handled. Uses no processor time meanwhile.
  virtual void Wait() = 0;

  // The same, but returns no later than AT_MOST from now.
  virtual void WaitFor(std::chrono::microseconds at_most) = 0;

  // The clock that waits go by: time since midnight.
  virtual std::chrono::microseconds SinceMidnight() = 0;
};

}  // namespace frostmark
