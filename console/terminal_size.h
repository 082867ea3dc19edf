#pragma once

#include <cstddef>

namespace frostmark {

struct TerminalSize {
  std::size_t columns;
  std::size_t rows;

  bool operator==(const TerminalSize&) const = default;
};

// The size of the terminal at this moment: as the terminal says, else COLUMNS and LINES, else
// 80x24. At least 20 columns and 5 rows.
TerminalSize SizeOfTerminal();

}  // namespace frostmark
