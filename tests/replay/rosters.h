#pragma once

#include <random>
#include <string>

#include "tests/reference/text_records.h"

namespace frostmark::test {

using Whim = std::mt19937_64;

// A whole number from FROM to TO.
int Between(Whim& whim, int from, int to);

// A player as the years may leave them: skills from 60 to 99, age from 18 to 45.
std::string AnyPlayer(Whim& whim, const std::string& position, const std::string& training);
// The same with skills from LOWEST to HIGHEST.
std::string AnyPlayer(Whim& whim, const std::string& position, const std::string& training,
                      int lowest, int highest);

// A proper roster of eleven: lead line and training line, in roster order.
reference::Lines ProperRoster(Whim& whim);
reference::Lines ProperRoster(Whim& whim, int lowest, int highest);

// A roster that a user or an editor may leave: shuffled, a few players more, fewer or elsewhere.
reference::Lines OddRoster(Whim& whim, int fewest, int most);

// ROSTER without the players of POSITIONS.
reference::Lines WithoutPositions(reference::Lines roster, const reference::Lines& positions);

// Makes the Shooting or the Defense of one player something that is not a number.
void SpoilOne(Whim& whim, reference::Lines& roster);

}  // namespace frostmark::test
