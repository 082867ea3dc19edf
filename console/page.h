#pragma once

#include <cstddef>

namespace frostmark {

// What the screens are drawn on.
struct Page {
  std::size_t width = 78;         // of titles and gathered values
  std::size_t lists_width = 100;  // of lists beside one another
  int list_rows = 22;             // the most that is seen of a list
  bool for_menu = false;          // a menu below offers the buttons, and lines are broken at WIDTH
};

}  // namespace frostmark
