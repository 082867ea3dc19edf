#include "tests/replay/rosters.h"

#include <algorithm>

namespace frostmark::test {

namespace {

const reference::Lines kRoster = {"GO", "RD", "LD", "RF", "CF", "LF", "RD", "LD", "RF", "CF", "LF"};

std::string AnyWord(Whim& whim) {
  std::string word(1, static_cast<char>('A' + Between(whim, 0, 25)));
  for (int letters = Between(whim, 2, 8); letters > 0; --letters) {
    word += static_cast<char>('a' + Between(whim, 0, 25));
  }
  // The match machines look for a position in the whole record: such a name fits it too.
  if (Between(whim, 0, 24) == 0) word += reference::ItemOf(kRoster, Between(whim, 0, 5));
  return word;
}

}  // namespace

int Between(Whim& whim, int from, int to) {
  return from + static_cast<int>(whim() % static_cast<unsigned>(to - from + 1));
}

std::string AnyPlayer(Whim& whim, const std::string& position, const std::string& training) {
  return AnyPlayer(whim, position, training, 60, 99);
}

std::string AnyPlayer(Whim& whim, const std::string& position, const std::string& training,
                      int lowest, int highest) {
  const int passing = Between(whim, lowest, highest);
  const int shooting = Between(whim, lowest, highest);
  const int defense = Between(whim, lowest, highest);
  const int agility = Between(whim, lowest, highest);
  const int overall = reference::OverallFor(position, passing, shooting, defense, agility, 70);
  return AnyWord(whim) + " " + AnyWord(whim) + "," + position + "," + std::to_string(overall) +
         "," + std::to_string(passing) + "," + std::to_string(shooting) + "," +
         std::to_string(defense) + "," + std::to_string(agility) + "," +
         std::to_string(Between(whim, 18, 45)) + "," + training;
}

reference::Lines ProperRoster(Whim& whim) { return ProperRoster(whim, 60, 99); }

reference::Lines ProperRoster(Whim& whim, int lowest, int highest) {
  reference::Lines roster;
  for (int i = 0; i < 11; ++i) {
    roster.push_back(
        AnyPlayer(whim, reference::ItemOf(kRoster, i), i < 6 ? "N" : "Y", lowest, highest));
  }
  return roster;
}

reference::Lines OddRoster(Whim& whim, int fewest, int most) {
  reference::Lines roster = ProperRoster(whim);
  const auto size = static_cast<std::size_t>(Between(whim, fewest, most));
  if (Between(whim, 0, 2) > 0) std::shuffle(roster.begin(), roster.end(), whim);
  while (roster.size() > size) roster.pop_back();
  while (roster.size() < size) {
    const std::string position = reference::ItemOf(kRoster, Between(whim, 0, 10));
    roster.push_back(AnyPlayer(whim, position, Between(whim, 0, 1) == 0 ? "N" : "Y"));
  }
  // A player of extremes.
  if (Between(whim, 0, 3) == 0 && !roster.empty()) {
    std::string& record = roster[static_cast<std::size_t>(Between(whim, 0, 99)) % roster.size()];
    record = AnyPlayer(whim, reference::GetField(record, "Position"), "N", -20, 120);
  }
  return roster;
}

reference::Lines WithoutPositions(reference::Lines roster, const reference::Lines& positions) {
  std::erase_if(roster, [&](const std::string& record) {
    const std::string position = reference::GetField(record, "Position");
    return std::find(positions.begin(), positions.end(), position) != positions.end();
  });
  return roster;
}

void SpoilOne(Whim& whim, reference::Lines& roster) {
  std::string& record = roster[static_cast<std::size_t>(Between(whim, 0, 99)) % roster.size()];
  reference::Lines parts = reference::SplitAt(record, ',');
  parts[static_cast<std::size_t>(Between(whim, 4, 5))] = Between(whim, 0, 1) == 0 ? "" : "8x";
  record = reference::JoinWith(parts, ',');
}

}  // namespace frostmark::test
