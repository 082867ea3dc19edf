#include "console/footer.h"

#include "console/terminal_size.h"
#include "console/text_layout.h"

namespace frostmark {

void Footer::Show(const std::string& status) {
  const std::string line = Wrapped(Printable(status), SizeOfTerminal().columns - 1, 0).front();
  if (line == status_) return;
  TakeAway();
  status_ = line;
  if (!line.empty()) transcript_.Prompt(line + "\n");
}

void Footer::TakeAway() {
  std::string clearing = editor_.TakeAway();
  if (!status_.empty()) clearing += "\033[A\r\033[J";
  status_.clear();
  if (!clearing.empty()) transcript_.Prompt(clearing);
}

}  // namespace frostmark
