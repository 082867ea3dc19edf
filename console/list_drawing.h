#pragma once

#include <string>
#include <vector>

#include "console/text_layout.h"
#include "ui/controls.h"

namespace frostmark {

// LIST under HEADING: its items with their numbers, the selected one marked. Of a list longer than
// MOST_ROWS only the items around the selection or the newest ones.
TextLines DrawList(const ListBox& list, const std::string& heading, int most_rows);

// BLOCKS beside one another, as many in a row as fit WIDTH.
TextLines PutSideBySide(const std::vector<TextLines>& blocks, std::size_t width);

}  // namespace frostmark
