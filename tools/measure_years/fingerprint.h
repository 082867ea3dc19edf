#pragma once

#include <string>

namespace frostmark {

// A number, as 16 hexadecimal digits, that changes with any name and any byte of the files below
// FOLDER. Two worlds with the same fingerprint are the same world.
std::string FingerprintOf(const std::string& folder);

}  // namespace frostmark
