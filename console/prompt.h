#pragma once

#include <string>
#include <vector>

#include "console/menu.h"
#include "console/script_stack.h"
#include "console/transcript.h"
#include "records/record_list.h"
#include "shell/program.h"

namespace frostmark {

// The console in front of a person: it draws the screens with a numbered menu of what can be done,
// prompts, turns a number into its command, and tells the play-by-play of a game and the history of
// a draft as they come.
class Prompt {
 public:
  Prompt(Program& program, Transcript& transcript, ScriptStack& script);
  ~Prompt();
  Prompt(const Prompt&) = delete;
  Prompt& operator=(const Prompt&) = delete;

  // Called whenever input is waited for: draws anew when there is something new to do.
  void Refresh();

  // Turns what the person has typed into a command line. False when there is nothing to run.
  bool Translate(std::string& line);

 private:
  // Prints each line that is added to a list.
  class News : public RecordList::Observer {
   public:
    News(const RecordList& list, bool newest_on_top, Prompt& prompt)
        : list_(list), newest_on_top_(newest_on_top), prompt_(prompt) {}
    // What comes at the bottom of a list with its newest line on top is out of view.
    void ItemInserted(int index) override {
      if (index == 0 || !newest_on_top_) prompt_.Tell(list_.List(index));
    }
    void ItemRemoved(int /*index*/) override {}
    void ItemChanged(int /*index*/) override {}
    void Cleared() override {}
    void SelectionChanged() override {}

   private:
    const RecordList& list_;
    bool newest_on_top_;
    Prompt& prompt_;
  };

  void Tell(const std::string& news);
  void Draw();
  void Help();
  bool PickEntry(std::string& line);
  bool AskForRest(const MenuEntry& entry, std::string& rest);

  Program& program_;
  Transcript& transcript_;
  ScriptStack& script_;
  News game_news_;
  News draft_news_;
  std::vector<MenuEntry> menu_;
  bool drawn_ = false;     // nothing has been done since the screens were drawn
  bool prompted_ = false;  // the prompt stands at the beginning of the last line
};

}  // namespace frostmark
