#pragma once

#include <string>

#include "console/line_editor.h"
#include "console/names.h"

namespace frostmark {

// What the end of the command LINE may become: names of commands, and after them what the command
// takes: captions, controls that a person gets to, screens, tabs, items, variables.
LineEditor::Completions CompletionsOf(const std::string& line, Names& names,
                                      const ScreenList& screens);

}  // namespace frostmark
