#pragma once

#include <span>

namespace frostmark {

// The names of players, in capitals, most common first: given names and family names
// of the United States census of 1990. The last family name is cut short, and stays so.
std::span<const char* const> GivenNames();   // 1219
std::span<const char* const> FamilyNames();  // 3653

}  // namespace frostmark
