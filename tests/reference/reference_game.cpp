#include "tests/reference/reference_game.h"

#include <cctype>

namespace frostmark::reference {

ReferenceGame::ReferenceGame(std::string app_path, Lines given, Lines family)
    : app_path_(std::move(app_path)), given_(std::move(given)), family_(std::move(family)) {
  captions = {
      {"Startup.Label8", "0"},          {"Startup.Label9", "0"},
      {"Startup.Label10", "0"},         {"TeamCreator.Label5", "0"},
      {"TeamCreator.Label6", "0"},      {"TeamCreator.Label7", "0"},
      {"Franchise.TeamName", ""},       {"Franchise.MyRank", "Rank F"},
      {"Franchise.NextWeek", "Week 1"}, {"Franchise.Season", "00"},
      {"Franchise.Champion", "00"},     {"Franchise.OppTeam", ""},
      {"Franchise.OppOverall", "00"},   {"Franchise.OppOffense", "00"},
      {"Franchise.OppDefense", "00"},   {"Franchise.LooseOrWin", ""},
      {"Franchise.Label19", ""},        {"FDraft.CurRank", "Rank F"},
      {"FDraft.CurTeam", "No one"},     {"FResults.Champ", "Denver Skeletons"},
  };
}

std::string ReferenceGame::TeamPath(const std::string& rank, const std::string& team) const {
  return app_path_ + "/Teams/" + rank + "/" + team;
}

std::string ReferenceGame::SettingsPath(const std::string& name) const {
  return app_path_ + "/Settings/" + name;
}

bool ReferenceGame::Asked(const std::string& box) {
  Tell(box);
  if (answers.empty()) throw Divergence{"the rules ask what the game did not ask: " + box};
  const std::string answer = answers.front();
  answers.pop_front();
  return answer == "yes";
}

std::string ReferenceGame::AskedText(const std::string& prompt) {
  Tell("ask: " + prompt);
  if (answers.empty()) throw Divergence{"the rules ask what the game did not ask: " + prompt};
  const std::string answer = answers.front();
  answers.pop_front();
  return answer;
}

void ReferenceGame::LoadPlayerFile(Lines& list, const std::string& path) {
  if (!shelf.Exists(path)) throw EndlessLoad{};
  int counter = 0;
  std::string record;
  for (const std::string& item : shelf.ReadItems(path)) {
    if (counter >= 1 && counter <= 8) {
      record += "," + item;
      ++counter;
    } else if (counter == 0) {
      record = item;
      counter = 1;
    }
    if (counter == 9) {
      list.push_back(record);
      counter = 0;
    }
  }
}

void ReferenceGame::LoadSettingsList(Lines& list, const std::string& name) {
  if (!shelf.Exists(SettingsPath(name))) throw EndlessLoad{};
  for (const std::string& item : shelf.ReadItems(SettingsPath(name))) list.push_back(item);
}

std::string ReferenceGame::RolledName(const std::string& asked_by) {
  const auto rolled_part = [&](const Lines& names, const std::string& which) {
    std::string name = ItemOf(names, rolls.Next(CountOf(names) - 1, asked_by + which));
    for (std::size_t i = 1; i < name.size(); ++i) {
      name[i] = static_cast<char>(std::tolower(static_cast<unsigned char>(name[i])));
    }
    return name;
  };
  const std::string given = rolled_part(given_, ", given name");
  const std::string family = rolled_part(family_, ", family name");
  return given + " " + family;
}

std::map<std::string, Lines> ReferenceGame::AllLists() const {
  std::map<std::string, Lines> all = lists;
  all["Franchise.Line1Stats"] = unwatched.line1_stats;
  all["Franchise.Line2Stats"] = unwatched.line2_stats;
  all["Franchise.LineList"] = unwatched.line_list;
  all["Franchise.DefList"] = unwatched.def_list;
  all["Game.Line1Stats"] = watched.line1_stats;
  all["Game.Line2Stats"] = watched.line2_stats;
  all["Game.LineList"] = watched.line_list;
  all["Game.DefList"] = watched.def_list;
  all["Game.Events"] = watched.events;
  return all;
}

std::map<std::string, std::string> ReferenceGame::AllCaptions() const {
  std::map<std::string, std::string> all = captions;
  all["Game.Label3"] = watched.goals_home;
  all["Game.Label4"] = watched.goals_visitor;
  return all;
}

}  // namespace frostmark::reference
