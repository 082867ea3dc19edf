// A team after its game, in the last week if the first byte is odd.
#include "records/runtime_error.h"
#include "tests/fuzz/fuzz.h"

namespace frostmark::test {

void Take(std::string_view input) {
  static Game game;
  static RecordList list;
  if (input.empty()) return;
  Franchise& franchise = game.program.franchise;
  franchise.NextWeek.SetCaption((input[0] & 1) != 0 ? "Week 10" : "Week 1");
  franchise.TeamName.SetCaption((input[0] & 2) != 0 ? "Team" : "Nobody");
  FillList(list, input.substr(1));
  if (list.ListCount() > 40) return;
  const int count = list.ListCount();
  game.dice.Reseed(1);
  try {
    franchise.TrainThem(list, "/nonexistent/frostmark/Teams/Rank F/Team");
  } catch (const RuntimeError&) {
  }
  Require(list.ListCount() == count, "nobody is lost");
}

}  // namespace frostmark::test
