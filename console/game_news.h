#pragma once

#include <functional>
#include <string>

#include "program/program.h"
#include "records/record_list.h"

namespace frostmark {

// Follows the play-by-play of a watched game and the history of a draft as they come.
class GameNews {
 public:
  // TELL is called with each line. LASTING: it is worth keeping on the terminal.
  using Tell = std::function<void(const std::string& line, bool lasting)>;

  GameNews(Program& program, Tell tell);
  ~GameNews();
  GameNews(const GameNews&) = delete;
  GameNews& operator=(const GameNews&) = delete;

  // How the game or the draft stands, on one line; empty where none goes on.
  std::string Status() const;

 private:
  class Lines : public RecordList::Observer {
   public:
    explicit Lines(std::function<void(int index)> inserted) : inserted_(std::move(inserted)) {}
    void ItemInserted(int index) override { inserted_(index); }
    void ItemRemoved(int /*index*/) override {}
    void ItemChanged(int /*index*/) override {}
    void Cleared() override {}
    void SelectionChanged() override {}

   private:
    std::function<void(int index)> inserted_;
  };

  void TellPlay(int index);
  bool PeriodRuns() const;
  std::string Score() const;

  Program& program_;
  Tell tell_;
  Lines plays_;
  Lines picks_;
  std::string told_score_;
};

}  // namespace frostmark
