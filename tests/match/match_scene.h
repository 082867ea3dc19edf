#pragma once

#include <stdexcept>
#include <string>
#include <type_traits>

#include "tests/support/game_fixture.h"

namespace frostmark::test {

// Ratings of a lead line for a match.
struct LineSkills {
  int shooting = 80;  // of all six
  int defense = 80;   // of the five skaters
  int goalie = 85;    // the goalie's Defense
};

// A lead line in roster order, with the names "go1", "rd1", "ld1", "rf1", "cf1", "lf1" for
// NUMBER 1. Small letters, for two capitals in a name would count as a position.
inline Lines LeadLine(int number, const LineSkills& skills = {}) {
  Lines line;
  for (const char* position : {"GO", "RD", "LD", "RF", "CF", "LF"}) {
    std::string name = position;
    for (char& c : name) c = static_cast<char>(c - 'A' + 'a');
    const bool goalie = name == "go";
    line.push_back(MakeRecord({.name = name + std::to_string(number),
                               .position = position,
                               .shooting = skills.shooting,
                               .defense = goalie ? skills.goalie : skills.defense}));
  }
  return line;
}

// LINE in the reverse of its order.
inline Lines Reversed(const Lines& line) { return {line.rbegin(), line.rend()}; }

// One of the two match machines, GameSimulation (unwatched) or Game (watched), with two lead lines
// on its lists. A machine is driven by given rolls and looked at where it asks for one more.
template <typename Machine>
class MatchMachine : public GameFixture {
 protected:
  static constexpr bool kWatched = std::is_same_v<Machine, Game>;
  static constexpr int kStepYields = kWatched ? 0 : 1;  // the yield after each step

  MatchMachine() { LineUp(LeadLine(1), LeadLine(2)); }

  Machine& machine() {
    if constexpr (kWatched) {
      return program().game;
    } else {
      return program().game_simulation;
    }
  }
  auto& lists() {
    if constexpr (kWatched) {
      return program().game;
    } else {
      return program().franchise;
    }
  }

  void LineUp(const Lines& first, const Lines& second) {
    line1 = first;
    line2 = second;
    FillList(lists().Line1Stats, first);
    FillList(lists().Line2Stats, second);
  }

  // A face-off, then steps without end.
  void PlayOn() {
    if constexpr (kWatched) {
      machine().PressStart();
      for (int step = 0; step < 200; ++step) machine().TickPeriod1();
    } else {
      machine().SimulateGame();
    }
  }

  // Plays from a face-off up to the first roll after ROLLS, and stops there: nobody rolls a 0.
  void Play(std::initializer_list<int> rolls) {
    dice().Forget();
    dice().Give(rolls);
    dice().Give({0});
    EXPECT_THROW(PlayOn(), std::logic_error);
    EXPECT_EQ(dice().LeftOver(), 0U);
  }

  int Goals(int team) {
    if constexpr (kWatched) {
      return StrictInt16((team == 1 ? machine().Label3 : machine().Label4).Caption());
    } else {
      return team == 1 ? machine().GoalsTeam1 : machine().GoalsTeam2;
    }
  }

  Lines line1;
  Lines line2;
};

// Both engines, for the tests of what they share.
using Machines = ::testing::Types<GameSimulation, Game>;
class MachineNames {
 public:
  template <typename Machine>
  static std::string GetName(int) {
    return std::is_same_v<Machine, Game> ? "Watched" : "Unwatched";
  }
};

}  // namespace frostmark::test
