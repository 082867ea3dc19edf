#include "program/program.h"

namespace frostmark {
namespace {

// A name drawn from NAMES, the first letter as it is stored and the rest in lower case. The first
// name of a list is never drawn.
std::string DrawName(Ordvik& ordvik, const RecordList& names) {
  std::string name = names.List(ordvik.RollUpTo(names.ListCount() - 1));
  for (std::size_t i = 1; i < name.size(); ++i) {
    if (name[i] >= 'A' && name[i] <= 'Z') name[i] = static_cast<char>(name[i] - 'A' + 'a');
  }
  return name;
}

}  // namespace

std::string HockeyNaming::GenPlayerName() {
  const std::string given = DrawName(ordvik_, program_.team_creator.List2);
  return given + " " + DrawName(ordvik_, program_.team_creator.List3);
}

}  // namespace frostmark
