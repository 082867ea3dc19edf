// A record, a field's name and a value, a line each.
#include <algorithm>

#include "records/lines/player_record.h"
#include "records/runtime_error.h"
#include "tests/fuzz/fuzz.h"

namespace frostmark::test {

void Take(std::string_view input) {
  static Game game;
  static RecordList lines;
  FillList(lines, input);
  const std::string record = lines.List(0);
  for (const char* field : {"Name", "Position", "Overall", "Passing", "Shooting", "Defense",
                            "Agility", "Age", "Training"}) {
    const std::string text = HockeyNaming::GetField(record, field);
    Require(text.find(',') == std::string::npos, "a field has no comma");
    Require(record.find(text) != std::string::npos, "a field is part of its record");
  }
  try {
    const std::string changed =
        game.program.hockey_naming.SetField(record, lines.List(1), lines.List(2));
    const auto commas = [](const std::string& text) {
      return std::count(text.begin(), text.end(), ',');
    };
    if (record.empty()) Require(changed.empty(), "nothing stays nothing");
    if (lines.List(1) != "Training" && !record.empty()) {
      Require(commas(changed) == std::max<long>(commas(record), kFieldCount - 1), "fields stay");
    }
  } catch (const RuntimeError&) {
  }
}

}  // namespace frostmark::test
