// A list of records or standings, a line each.
#include <algorithm>
#include <vector>

#include "records/runtime_error.h"
#include "tests/fuzz/fuzz.h"

namespace frostmark::test {
namespace {

std::vector<std::string> Sorted(const RecordList& list) {
  std::vector<std::string> items;
  for (int i = 0; i < list.ListCount(); ++i) items.push_back(list.List(i));
  std::sort(items.begin(), items.end());
  return items;
}

}  // namespace

void Take(std::string_view input) {
  static Game game;
  static RecordList list;
  FillList(list, input);
  if (list.ListCount() > 40) return;
  const std::vector<std::string> before = Sorted(list);
  try {
    HockeyNaming::SortRankList(list);
    Require(Sorted(list) == before, "standings are the same teams");
  } catch (const RuntimeError&) {
  }
  FillList(list, input);
  try {
    HockeyNaming::SortByOverall(list);
    Require(Sorted(list) == before, "a sorted list has the same players");
  } catch (const RuntimeError&) {
  }
  const int count = list.ListCount();
  try {
    game.program.hockey_naming.SetTrainingFlags(list);
  } catch (const RuntimeError&) {
  }
  Require(list.ListCount() == count, "nobody is lost");
}

}  // namespace frostmark::test
