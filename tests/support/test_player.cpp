#include "tests/support/test_player.h"

#include <array>
#include <cmath>
#include <sstream>

namespace frostmark::test {
namespace {

// Worked out here and not asked of the game, so that tests can compare the two.
int OverallOf(const TestPlayer& player) {
  if (player.position == "GO") {
    return static_cast<int>(std::nearbyint((player.defense + player.passing) / 2.0));
  }
  const bool back = player.position == "LD" || player.position == "RD";
  const int own_skill = back ? player.defense : player.shooting;
  return static_cast<int>(std::nearbyint((own_skill + player.passing + player.agility) / 3.0));
}

}  // namespace

std::string MakeRecord(const TestPlayer& player) {
  std::ostringstream record;
  record << player.name << ',' << player.position << ',' << OverallOf(player) << ','
         << player.passing << ',' << player.shooting << ',' << player.defense << ','
         << player.agility << ',' << player.age << ',' << player.training;
  return record.str();
}

Lines MakeRoster(int skill) {
  constexpr std::array kPositions = {"GO", "RD", "LD", "RF", "CF", "LF",
                                     "RD", "LD", "RF", "CF", "LF"};
  constexpr std::array kNames = {"Adam", "Brad", "Carl", "Dean", "Earl", "Fred",
                                 "Glen", "Hugh", "Ivan", "Jack", "Kent"};
  Lines roster;
  for (std::size_t i = 0; i < kPositions.size(); ++i) {
    roster.push_back(MakeRecord({.name = std::string(kNames[i]) + " Player",
                                 .position = kPositions[i],
                                 .passing = skill,
                                 .shooting = skill,
                                 .defense = skill,
                                 .agility = skill,
                                 .training = i < 6 ? "N" : "Y"}));
  }
  return roster;
}

}  // namespace frostmark::test
