#pragma once

#include <functional>
#include <memory>
#include <string>
#include <unordered_map>
#include <vector>

#include "desktop/guard.h"
#include "desktop/keyboard_return.h"
#include "desktop/stage.h"
#include "ui/front_end.h"

class QWidget;

namespace frostmark {

class ScreenWindow;
class Ticker;

// The desktop on Qt. A screen's window is made when the screen is first shown and then kept; timers
// run from the start. It needs a QApplication and is deleted after the program it serves.
class QtFrontEnd : public FrontEnd, public Screen::Observer {
 public:
  // LEAVE ends the process with an exit code. A test may hand in one that returns: the procedures
  // on the stack are then unwound, and nothing enters the game any more.
  explicit QtFrontEnd(std::function<void(int code)> leave = LeaveProcess);
  ~QtFrontEnd() override;

  void Yield() override;
  void Wait() override;
  void WaitFor(std::chrono::microseconds at_most) override;
  void Open(ScreenList& screens) override;
  Answer ShowBox(const MessageBox& box) override;
  std::string AskText(const std::string& prompt) override;
  void OpenWebPage(const std::string& address) override;
  std::chrono::microseconds SinceMidnight() override;
  [[noreturn]] void EndProgram() override;

  void ScreenChanged(Screen& screen) override;
  void DragRequested(Screen& screen) override;

  // Every way into the game outside the windows, such as its start, goes through this.
  Guard& guard() { return guard_; }

  // Brings what the user is at in front of the windows of other programs: the box that is open, or
  // the screen in front.
  void ComeToFront();

  // Puts the main screens where and how the user left them the last time.
  void TakePreferences();

  // The window of SCREEN, or nullptr when it has not been shown yet.
  ScreenWindow* Window(const Screen& screen) const;

  static void LeaveProcess(int code);

 private:
  void EndByError(const std::string& text);
  void LetEventsRun();
  void StopIfEnded() const;
  QWidget* FrontWindow() const;
  void ChangeZoom(int steps);
  void ToggleFullScreen();
  void Dress();
  void RefitWindows();
  QWidget* OpenerOf(const Screen& popup) const;

  std::function<void(int code)> leave_;
  Guard guard_;
  ScreenList* screens_ = nullptr;
  std::vector<std::unique_ptr<Ticker>> tickers_;
  std::unordered_map<const Screen*, std::unique_ptr<ScreenWindow>> windows_;
  Stage stage_;
  KeyboardReturn keyboard_return_;
  int yields_left_ = 0;  // until the clock is read again
  std::chrono::steady_clock::time_point next_events_;
};

}  // namespace frostmark
