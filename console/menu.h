#pragma once

#include <string>
#include <vector>

#include "ui/screen.h"

namespace frostmark {

// One thing that a person can do at this moment.
struct MenuEntry {
  enum class Asks { kNothing, kItem, kText };

  std::string words;    // as the menu shows it
  std::string command;  // what does it, but for what it asks
  Asks asks;

  bool operator==(const MenuEntry&) const = default;
};

// All that can be done on SCREEN.
std::vector<MenuEntry> MenuOf(const Screen& screen);

}  // namespace frostmark
