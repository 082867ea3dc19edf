#pragma once

#include <string>

#include "tests/support/texts.h"

namespace frostmark::test {

// The fields of a player's record; Overall follows from the skills.
struct TestPlayer {
  std::string name = "John Doe";
  std::string position = "CF";
  int passing = 80;
  int shooting = 80;
  int defense = 80;
  int agility = 80;
  int age = 20;
  std::string training = "N";
};
std::string MakeRecord(const TestPlayer& player);

// Eleven records in roster order with all skills at SKILL: GO RD LD RF CF LF on the lead line, RD
// LD RF CF LF on the training line. The names are all different.
Lines MakeRoster(int skill);

}  // namespace frostmark::test
