#pragma once

#include <vector>

#include "console/menu.h"
#include "console/terminal_size.h"
#include "console/text_layout.h"
#include "ui/screen.h"

namespace frostmark {

// SCREEN and the numbered MENU of what can be done, in lines that fit the width of SIZE, and if
// possible so few that ROWS_BELOW more fit its height: long lists give way. On a wide terminal the
// menu stands beside the screen.
TextLines DrawFrontPage(const Screen& screen, const std::vector<MenuEntry>& menu, TerminalSize size,
                        std::size_t rows_below);

}  // namespace frostmark
