#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "ui/controls.h"

namespace frostmark {

using TextLines = std::vector<std::string>;

// How many columns of a terminal TEXT (UTF-8) takes.
std::size_t WidthOf(std::string_view text);
// TEXT with everything that a terminal would act on replaced.
std::string Printable(std::string_view text);

// LIST under HEADING: its items with their numbers, the selected one marked. Of a long list only
// the items around the selection or the newest ones.
TextLines DrawList(const ListBox& list, const std::string& heading);

// BLOCKS beside one another, as many in a row as fit.
TextLines PutSideBySide(const std::vector<TextLines>& blocks);

}  // namespace frostmark
