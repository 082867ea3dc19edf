#pragma once

#include <string>

#include "console/line_editor.h"
#include "console/transcript.h"

namespace frostmark {

// The lowest lines of a terminal: how the game stands, and below it the line that is edited. They
// make way for every line that is printed and are drawn again in place.
class Footer {
 public:
  // All outlive it.
  Footer(Transcript& transcript, LineEditor& editor) : transcript_(transcript), editor_(editor) {}

  // Shows as many words of STATUS as fit on a line in place of the one before; none where it is
  // empty.
  void Show(const std::string& status);
  // Clears the lowest lines.
  void TakeAway();
  // The lines stay behind as they are: something is printed below them.
  void LeaveBehind() { status_.clear(); }

 private:
  Transcript& transcript_;
  LineEditor& editor_;
  std::string status_;  // as it stands on the terminal
};

}  // namespace frostmark
