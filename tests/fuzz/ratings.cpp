// A list of records, a line each.
#include "records/runtime_error.h"
#include "tests/fuzz/fuzz.h"

namespace frostmark::test {

void Take(std::string_view input) {
  static Game game;
  static RecordList list;
  FillList(list, input);
  if (list.ListCount() > 200) return;
  const int count = list.ListCount();
  try {
    game.program.hockey_naming.RateTeam(list);
  } catch (const RuntimeError&) {
  }
  Require(list.ListCount() == count, "rating changes nothing");
}

}  // namespace frostmark::test
