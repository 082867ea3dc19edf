#pragma once

#include <QString>
#include <chrono>
#include <cstdint>
#include <functional>
#include <memory>
#include <string>

#include "desktop/decorations.h"
#include "desktop/qt_front_end.h"
#include "desktop/screen_form.h"
#include "desktop/screen_window.h"
#include "program/program.h"
#include "records/dice.h"
#include "tests/support/temporary_world.h"

namespace frostmark::test {

// Dice that fall the same way at every start.
class RepeatableDice : public Dice {
 public:
  int Roll(int n) override;

 private:
  std::uint64_t state_ = 1;
};

// The real desktop, boxes and all, but with a clock of its own: where the game waits for a length
// of time, that time has passed at once. The end of the program only leaves its exit code behind.
class QuickFrontEnd : public QtFrontEnd {
 public:
  QuickFrontEnd();

  void Yield() override;
  void WaitFor(std::chrono::microseconds at_most) override;
  std::chrono::microseconds SinceMidnight() override { return now_; }

  // Is done at every yield, until it is taken away: a procedure of the game passes there.
  std::function<void()> at_yield;

  // The exit code, or -1 as long as the program has not ended.
  int ExitCode() const { return exit_code_; }

 private:
  std::chrono::microseconds now_ = std::chrono::hours(12);
  int exit_code_ = -1;
};

// Keeps what the desktop remembers of its user away from that of the person at the machine, in a
// folder of the run's own.
void KeepPreferencesApart();

// A whole game in windows, in a world of its own.
class WindowGame {
 public:
  WindowGame();

  // Starts the program: the start screen is on view afterwards.
  void Start();
  // Takes the short way, without windows' help, to a franchise in its first week.
  void StartFranchise();

  Program& program() { return *program_; }
  QuickFrontEnd& front_end() { return front_end_; }
  QString Folder() const { return QString::fromStdString(world_.path()); }

  ScreenWindow& Window(const Screen& screen) const;

  // The widget called NAME in the window of SCREEN, which must have been shown.
  template <class Widget>
  Widget& On(const Screen& screen, const char* name) const {
    return Part<Widget>(Window(screen).form(), name);
  }

 private:
  TemporaryWorld world_;
  QuickFrontEnd front_end_;
  RepeatableDice dice_;
  std::unique_ptr<Program> program_;
};

}  // namespace frostmark::test
