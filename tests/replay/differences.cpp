#include "tests/replay/differences.h"

#include <array>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>

namespace frostmark::test {

namespace {

Control* FindControl(Program& program, const std::string& full_name) {
  const std::size_t dot = full_name.find('.');
  Screen* const screen = program.screens.Find(full_name.substr(0, dot));
  return screen == nullptr ? nullptr : screen->Find(full_name.substr(dot + 1));
}

std::string Quoted(const std::string& text) { return "\"" + text + "\""; }

std::string Both(const std::string& what, const std::string& in_program,
                 const std::string& in_reference) {
  return what + ": the program has " + Quoted(in_program) + ", the reference " +
         Quoted(in_reference);
}

// A roster whose load never ends goes on filling below the press that waits for it.
bool IsEndlessTail(const std::string& name, const ListBox& list, int from) {
  if (name != "Franchise.tempList" && name != "Franchise.Team1" && name != "Franchise.Team2") {
    return false;
  }
  for (int i = from; i < list.ListCount(); ++i) {
    if (list.List(i) != ",,,,,,,,") return false;
  }
  return true;
}

std::string ListDifference(Program& program, const std::string& name,
                           const reference::Lines& expected, bool endless) {
  const auto* list = dynamic_cast<ListBox*>(FindControl(program, name));
  if (list == nullptr) return name + ": the program has no such list";
  const int count = static_cast<int>(expected.size());
  for (int i = 0; i < count || i < list->ListCount(); ++i) {
    if (endless && i == count && IsEndlessTail(name, *list, i)) return "";
    const std::string wanted = i < count ? expected[static_cast<std::size_t>(i)] : "(no item)";
    const std::string found = i < list->ListCount() ? list->List(i) : "(no item)";
    if (found != wanted) return Both(name + " item " + std::to_string(i), found, wanted);
  }
  return "";
}

std::string CaptionDifference(Program& program, const std::string& name,
                              const std::string& expected) {
  const auto* control = dynamic_cast<CaptionedControl*>(FindControl(program, name));
  if (control == nullptr) return name + ": the program has no such caption";
  return control->Caption() == expected ? "" : Both(name, control->Caption(), expected);
}

using Variables = std::map<std::string, std::pair<std::string, std::string>>;

// Of either machine: the program's variable beside the reference's.
template <typename InProgram, typename InReference>
void AddMachine(Variables& all, const std::string& module, const InProgram& program,
                const InReference& reference) {
  all[module + ".PassesLeft"] = {std::to_string(program.PassesLeft),
                                 std::to_string(reference.passes_left)};
  all[module + ".PuckTeam"] = {std::to_string(program.PuckTeam),
                               std::to_string(reference.puck_team)};
  all[module + ".PuckCarrier"] = {program.PuckCarrier, reference.puck_carrier};
  all[module + ".PasserName"] = {program.PasserName, reference.passer_name};
  all[module + ".PuckPosition"] = {program.PuckPosition, reference.puck_position};
  all[module + ".Defender"] = {program.Defender, reference.defender};
  all[module + ".DefenderPosition"] = {program.DefenderPosition, reference.defender_position};
}

void AddNaming(Variables& all, const HockeyNaming& program, const reference::Naming& reference) {
  const auto number = [&](const std::string& name, int in_program, int in_reference) {
    all["HockeyNaming." + name] = {std::to_string(in_program), std::to_string(in_reference)};
  };
  all["HockeyNaming.CurName"] = {program.CurName, reference.cur_name};
  all["HockeyNaming.CurPosition"] = {program.CurPosition, reference.cur_position};
  all["HockeyNaming.CurTraining"] = {program.CurTraining, reference.cur_training};
  number("CurOverall", program.CurOverall, reference.cur_overall);
  number("CurPassing", program.CurPassing, reference.cur_passing);
  number("CurShooting", program.CurShooting, reference.cur_shooting);
  number("CurDefense", program.CurDefense, reference.cur_defense);
  number("CurAgility", program.CurAgility, reference.cur_agility);
  number("CurAge", program.CurAge, reference.cur_age);
  number("TeamOffense", program.TeamOffense, reference.team_offense);
  number("TeamDefense", program.TeamDefense, reference.team_defense);
  number("TeamOverall", program.TeamOverall, reference.team_overall);
}

Variables AllVariables(const Program& program, const reference::ReferenceGame& reference) {
  Variables all;
  AddMachine(all, "GameSimulation", program.game_simulation, reference.unwatched);
  AddMachine(all, "Game", program.game, reference.watched);
  AddNaming(all, program.hockey_naming, reference.naming);
  all["Franchise.Score1"] = {std::to_string(program.franchise.Score1),
                             std::to_string(reference.score1)};
  all["Franchise.Score2"] = {std::to_string(program.franchise.Score2),
                             std::to_string(reference.score2)};
  all["Franchise.SimRunning"] = {std::to_string(program.franchise.SimRunning),
                                 std::to_string(reference.sim_running)};
  all["Franchise.Command5 visible"] = {std::to_string(program.franchise.Command5.Visible()),
                                       std::to_string(reference.cancel_visible)};
  all["Game.FranchiseMatch"] = {std::to_string(program.game.FranchiseMatch),
                                std::to_string(reference.franchise_match)};
  const std::array<const ProgressBar*, 3> bars = {&program.game.Period1, &program.game.Period2,
                                                  &program.game.Period3};
  const std::array<const Timer*, 3> timers = {&program.game.Timer1, &program.game.Timer2,
                                              &program.game.Timer3};
  for (std::size_t period = 1; period <= 3; ++period) {
    const std::string number = std::to_string(period);
    all["Game.Period" + number] = {std::to_string(bars[period - 1]->Value()),
                                   std::to_string(reference.period_steps.at(period))};
    all["Game.Timer" + number + " enabled"] = {std::to_string(timers[period - 1]->Enabled()),
                                               std::to_string(reference.timer_runs.at(period))};
  }
  all["FDraft.ReleasedPlayer"] = {program.f_draft.ReleasedPlayer, reference.released_player};
  return all;
}

std::map<std::string, std::string> FilesUnder(const std::string& folder) {
  std::map<std::string, std::string> files;
  for (const auto& entry : std::filesystem::recursive_directory_iterator(folder)) {
    if (!entry.is_regular_file()) continue;
    std::ifstream file(entry.path(), std::ios::binary);
    files[entry.path().string()] = {std::istreambuf_iterator<char>(file), {}};
  }
  return files;
}

}  // namespace

std::string FirstDifference(Program& program, const reference::ReferenceGame& reference) {
  for (const auto& [name, pair] : AllVariables(program, reference)) {
    if (pair.first != pair.second) return Both(name, pair.first, pair.second);
  }
  for (const auto& [name, expected] : reference.AllCaptions()) {
    const std::string difference = CaptionDifference(program, name, expected);
    if (!difference.empty()) return difference;
  }
  for (const auto& [name, expected] : reference.AllLists()) {
    const std::string difference =
        ListDifference(program, name, expected, reference.endless_loads > 0);
    if (!difference.empty()) return difference;
  }
  return "";
}

std::string FirstFileDifference(const std::string& app_path,
                                const reference::ReferenceGame& reference) {
  const auto found = FilesUnder(app_path);
  for (const auto& [path, content] : found) {
    if (!reference.shelf.Exists(path)) return path + ": the reference has no such file";
    const std::string& expected = reference.shelf.files.at(path);
    if (content != expected) return Both(path, content, expected);
  }
  for (const auto& [path, content] : reference.shelf.files) {
    if (!found.contains(path)) return path + ": the program has no such file";
  }
  return "";
}

}  // namespace frostmark::test
