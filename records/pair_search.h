#pragma once

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstring>
#include <string_view>

namespace frostmark {

// Whether the two bytes of PAIR stand side by side in TEXT, as TEXT.find(PAIR) has it. A game looks
// for positions in records some seven thousand times, so eight places are compared at once.
inline bool ContainsPair(std::string_view text, std::string_view pair) {
  constexpr std::size_t kBlock = 16;
  using Block [[gnu::vector_size(kBlock)]] = std::uint16_t;
  if (text.size() <= kBlock) return text.find(pair) != std::string_view::npos;

  const auto block_at = [](const char* place) {
    Block block;
    std::memcpy(&block, place, kBlock);
    return block;
  };
  std::uint16_t both = 0;
  std::memcpy(&both, pair.data(), sizeof both);
  const Block sought = Block{} + both;
  Block found{};
  // From PLACE on: the pairs that begin at its even bytes, and those that begin at its odd ones.
  const auto look = [&](const char* place) {
    found |= (block_at(place) == sought) | (block_at(place + 1) == sought);
  };
  // Four steps reach over any record; a step that would reach beyond the end looks at the last
  // places again, which costs less than asking whether it is needed.
  const std::size_t last = text.size() - kBlock - 1;
  for (std::size_t step = 0; step < 3; ++step) look(text.data() + std::min(step * kBlock, last));
  for (std::size_t at = 3 * kBlock; at < last; at += kBlock) look(text.data() + at);
  look(text.data() + last);
  std::array<std::uint64_t, 2> halves{};
  std::memcpy(halves.data(), &found, kBlock);
  return (halves[0] | halves[1]) != 0;
}

}  // namespace frostmark
