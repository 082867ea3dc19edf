#pragma once

#include <optional>
#include <string>
#include <vector>

#include "console/footer.h"
#include "console/game_news.h"
#include "console/menu.h"
#include "console/names.h"
#include "console/script_stack.h"
#include "console/terminal_size.h"
#include "console/transcript.h"
#include "program/program.h"

namespace frostmark {

// The console in front of a person: it draws the front screen with a numbered menu of what can be
// done, prompts, turns a number into its command, and tells how a game or a draft goes on.
class Prompt {
 public:
  // All outlive it.
  Prompt(Program& program, Names& names, Transcript& transcript, ScriptStack& script);

  // Called whenever input is waited for: draws again when there is something new to do.
  void Refresh();
  // Called while time passes without input.
  void ShowStatus();

  // Turns what the person has typed into a command line. False when there is nothing to run.
  bool Translate(std::string& line);

 private:
  void Tell(const std::string& news, bool lasting);
  void FindFront();
  std::vector<MenuEntry> MenuOfFront() const;
  void Draw();
  void Help();
  void PrintFound(const std::vector<std::string>& words);
  bool LookAt(const std::string& line);
  bool PickEntry(std::string& line);
  bool AskForRest(const MenuEntry& entry, std::string& rest);

  Program& program_;
  Transcript& transcript_;
  ScriptStack& script_;
  LineEditor* const editor_;  // nullptr on a terminal that cannot move its cursor
  std::optional<Footer> footer_;
  GameNews news_;
  std::vector<Screen*> visible_;  // when the front screen was last found
  Screen* front_ = nullptr;       // nullptr where no screen is visible
  std::vector<MenuEntry> menu_;
  TerminalSize size_{};
  bool drawn_ = false;     // nothing has been done since the screen was drawn
  bool prompted_ = false;  // without an editor: the prompt stands at the beginning of the last line
};

}  // namespace frostmark
