#pragma once

#include <gtest/gtest.h>

#include <cstdint>
#include <cstdlib>
#include <string>

namespace frostmark::test {

// The seeds of a replay: 1 to COUNT. For a long run by hand the environment sets the first seed and
// how many (FROSTMARK_REPLAY_FIRST_SEED, FROSTMARK_REPLAY_SEEDS).
inline auto Seeds(std::uint64_t count) {
  const char* const first = std::getenv("FROSTMARK_REPLAY_FIRST_SEED");
  const char* const wanted = std::getenv("FROSTMARK_REPLAY_SEEDS");
  const std::uint64_t from = first != nullptr ? std::stoull(first) : 1;
  return testing::Range<std::uint64_t>(from,
                                       from + (wanted != nullptr ? std::stoull(wanted) : count));
}

}  // namespace frostmark::test
