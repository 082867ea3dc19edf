#pragma once

// A game in real windows, and somebody in front of it.
//
//   TEST(Franchise, IsOpenedByMouse) {
//     Sit([](Sitting& sitting) {
//       sitting.Click(sitting.program().startup, "HighButton2");
//       ...
//     });
//   }
//
// The whole test program has one X server with a window manager (x_server.h). Sit() opens a game in
// a folder of its own and runs the script in a thread of its own: a person beside the program, who
// goes on while the game is deep in a procedure or has a box up. The person's hands are keys and
// mouse of the X server, and their eyes what the server says of the windows (x_display.h). What is
// asked of the game itself, Ask() has answered by the thread of the windows. Until() waits for a
// condition, and fails the test when it never comes true; after a failure the script ends at once.
// What they saw is kept in the folder that FROSTMARK_TEST_PICTURES names, if it does.
// The program ends with the script, and any procedure that still runs is unwound.

#include <QEvent>
#include <functional>
#include <optional>
#include <string>
#include <type_traits>

#include "tests/desktop/window_game.h"
#include "tests/windows/x_display.h"

class QListView;

namespace frostmark::test {

class Sitting {
 public:
  explicit Sitting(WindowGame& game) : game_(game) {}

  // The game. It belongs to the thread of the windows: look at it and change it within Ask.
  Program& program() { return game_.program(); }
  WindowGame& game() { return game_; }
  XDisplay& x() { return x_; }

  // What LOOK returns, run by the thread of the windows between two events.
  template <class Look>
  std::invoke_result_t<Look> Ask(Look look) {
    if constexpr (std::is_void_v<std::invoke_result_t<Look>>) {
      OnWindows(look);
    } else {
      std::optional<std::invoke_result_t<Look>> answer;
      OnWindows([&] { answer.emplace(look()); });
      return std::move(*answer);
    }
  }

  // Waits until TRUTH is true, asked in this thread. WHAT is for the message when it never is.
  void Until(const std::string& what, const std::function<bool()>& truth);
  // The same, asked in the thread of the windows.
  void UntilGame(const std::string& what, const std::function<bool()>& truth);

  // The window of SCREEN as the X server has it now.
  XWindow Window(const Screen& screen);
  // Waits until the window of SCREEN is seen and has the keyboard.
  void UntilInFront(const Screen& screen);
  // Waits until SCREEN is in front and its widget NAME gets what is typed.
  void UntilAt(const Screen& screen, const std::string& name);
  // Presses Tab until the widget NAME gets what is typed.
  void TabTo(const std::string& name);
  // The place on the screen of the widget NAME of SCREEN, in its pixels.
  QRect Place(const Screen& screen, const char* name);
  // Waits until the widget can be pressed, and clicks the middle of it.
  void Click(const Screen& screen, const char* name, int button = 1);
  void ClickRow(const Screen& screen, const char* list, int row, int button = 1);
  void DoubleClickRow(const Screen& screen, const char* list, int row);

  // Waits for a box of the program, presses KEY on it and waits until it has gone. TEXT is typed
  // first.
  void AnswerBox(const std::string& key, const std::string& text = {});

  // From the start screen to a new franchise in its first week.
  void StartFranchise();
  // From the franchise's first week to the results of the season.
  void PlayToResults();
  // From the results over every turn of the user to the end of the draft. AT_FIRST_CHOICE, if
  // given, is done while the user is first to choose whom to let go.
  void PlayDraft(const std::function<void()>& at_first_choice = nullptr);
  // From the end of the draft to the desk, with the new season saved.
  void StartSeason();

 private:
  friend void Sit(const std::function<void(Sitting&)>& script);

  void OnWindows(const std::function<void()>& job);
  void Keep(const std::string& what);
  void ChooseInDraft();

  WindowGame& game_;
  XDisplay x_;
  int pictures_ = 0;
};

// Plays SCRIPT in front of a game whose start screen is on view.
void Sit(const std::function<void(Sitting&)>& script);

}  // namespace frostmark::test
