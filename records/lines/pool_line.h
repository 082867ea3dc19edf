#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "records/lines/player_line.h"

namespace frostmark {

// The player of RECORD as the draft's pool shows them: James Smith 85/23.
std::string FormatPoolLine(std::string_view record);

// Takes such a line apart, into views into it and no position. Nothing when LINE has another form.
std::optional<PlayerLine> ParsePoolLine(std::string_view line);

}  // namespace frostmark
