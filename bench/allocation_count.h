#pragma once

#include <cstdint>

namespace frostmark {

// How often the process has taken memory from the heap so far. The bench replaces the global
// operator new to know it.
std::int64_t AllocationCount();

}  // namespace frostmark
