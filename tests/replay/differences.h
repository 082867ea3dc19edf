#pragma once

#include <string>

#include "program/program.h"
#include "tests/reference/reference_game.h"

namespace frostmark::test {

// The first difference between PROGRAM and REFERENCE in words, or "".
std::string FirstDifference(Program& program, const reference::ReferenceGame& reference);

// The first difference between the files under APP_PATH and those of REFERENCE, or "".
std::string FirstFileDifference(const std::string& app_path,
                                const reference::ReferenceGame& reference);

}  // namespace frostmark::test
