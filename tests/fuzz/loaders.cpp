// A team file and a standings file of any bytes.
#include <algorithm>

#include "records/lines/player_record.h"
#include "tests/fuzz/fuzz.h"
#include "tests/support/temporary_world.h"

namespace frostmark::test {
namespace {

struct Loading {
  TemporaryWorld world;
  Game game{world.path()};
  RecordList first;
  RecordList second;
};

bool Same(const RecordList& one, const RecordList& other) {
  if (one.ListCount() != other.ListCount()) return false;
  for (int i = 0; i < one.ListCount(); ++i) {
    if (one.List(i) != other.List(i)) return false;
  }
  return true;
}

// What would be read otherwise from a file that the game has written.
bool IsPlain(const RecordList& list) {
  for (int i = 0; i < list.ListCount(); ++i) {
    const std::string& record = list.List(i);
    if (record.find_first_of("\"\r\n") != std::string::npos) return false;
    if (record.starts_with(' ') || record.find(", ") != std::string::npos) return false;
    if (std::count(record.begin(), record.end(), ',') != kFieldCount - 1) return false;
  }
  return true;
}

}  // namespace

void Take(std::string_view input) {
  static Loading loading;
  auto& [world, game, first, second] = loading;
  Ordvik& ordvik = game.program.ordvik;
  WriteText(world.TeamPath("Rank F", "Team"), input);
  first.Clear();
  ordvik.LoadPlayerFile(first, world.TeamPath("Rank F", "Team"));
  for (int i = 0; i < first.ListCount(); ++i) {
    const std::string& record = first.List(i);
    Require(std::count(record.begin(), record.end(), ',') >= kFieldCount - 1, "nine fields");
  }
  if (IsPlain(first)) {
    ordvik.SaveListFile(first, world.TeamPath("Rank F", "Team"));
    second.Clear();
    ordvik.LoadPlayerFile(second, world.TeamPath("Rank F", "Team"));
    Require(Same(first, second), "a written team is read as it was");
  }
  WriteText(world.SettingsPath("Alerts.fmk"), input);
  second.Clear();
  ordvik.LoadSettingsList(second, "Alerts.fmk");
  Require(first.ListCount() == second.ListCount() / kFieldCount, "nine items make a record");
}

}  // namespace frostmark::test
