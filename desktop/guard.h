#pragma once

#include <exception>
#include <functional>
#include <string>
#include <utility>

#include "ui/front_end.h"

namespace frostmark {

// The one way from Qt into the game. Whatever a handler throws stops here, since exceptions must
// not pass Qt's own frames, and nothing enters the game any more once the program has ended.
class Guard {
 public:
  // FAILED is told the text of an error that ended a handler, after Ended has become true.
  explicit Guard(std::function<void(const std::string& text)> failed)
      : failed_(std::move(failed)) {}

  bool Ended() const { return ended_; }
  void SetEnded() { ended_ = true; }

  template <class Function>
  void Call(Function&& function) noexcept {
    if (ended_) return;
    try {
      function();
    } catch (const ProgramEnded&) {
      ended_ = true;
    } catch (const std::exception& error) {
      Fail(error.what());
    } catch (...) {
      Fail("Unknown error");
    }
  }

 private:
  void Fail(const std::string& text) {
    ended_ = true;
    failed_(text);
  }

  std::function<void(const std::string& text)> failed_;
  bool ended_ = false;
};

}  // namespace frostmark
