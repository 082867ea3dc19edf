#include "tests/replay/rosters.h"

#include <algorithm>

namespace frostmark::replay {

namespace {

const reference::Lines kRoster = {"GO", "RD", "LD", "RF", "CF", "LF", "RD", "LD", "RF", "CF", "LF"};

std::string AnyWord(Whim& whim) {
  std::string word(1, static_cast<char>('A' + Between(whim, 0, 25)));
  for (int letters = Between(whim, 2, 8); letters > 0; --letters) {
    word += static_cast<char>('a' + Between(whim, 0, 25));
  }
  return word;
}

}  // namespace

int Between(Whim& whim, int from, int to) {
  return from + static_cast<int>(whim() % static_cast<unsigned>(to - from + 1));
}

std::string AnyPlayer(Whim& whim, const std::string& position, const std::string& training) {
  const int passing = Between(whim, 60, 99);
  const int shooting = Between(whim, 60, 99);
  const int defense = Between(whim, 60, 99);
  const int agility = Between(whim, 60, 99);
  const int overall = reference::OverallFor(position, passing, shooting, defense, agility, 70);
  return AnyWord(whim) + " " + AnyWord(whim) + "," + position + "," + std::to_string(overall) +
         "," + std::to_string(passing) + "," + std::to_string(shooting) + "," +
         std::to_string(defense) + "," + std::to_string(agility) + "," +
         std::to_string(Between(whim, 18, 45)) + "," + training;
}

reference::Lines ProperRoster(Whim& whim) {
  reference::Lines roster;
  for (int i = 0; i < 11; ++i) {
    roster.push_back(AnyPlayer(whim, reference::ItemOf(kRoster, i), i < 6 ? "N" : "Y"));
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
  return roster;
}

void Fill(RecordList& list, const reference::Lines& lines) {
  list.Clear();
  for (const std::string& line : lines) list.AddItem(line);
}

reference::Lines LinesOf(const RecordList& list) {
  reference::Lines lines;
  for (int i = 0; i < list.ListCount(); ++i) lines.push_back(list.List(i));
  return lines;
}

}  // namespace frostmark::replay
