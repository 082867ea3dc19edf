#include "tests/reference/reference_game.h"

namespace frostmark::reference {

void ReferenceGame::AddToRoster(const std::string& record) {
  if (GetField(record, "Training") == "N") {
    lists["Franchise.MainList"].push_back(record);
    lists["Franchise.MainRoster"].push_back(RosterLine(record));
  }
  if (GetField(record, "Training") == "Y") {
    lists["Franchise.TrainList"].push_back(record);
    lists["Franchise.TrainingRoster"].push_back(RosterLine(record));
  }
}

void ReferenceGame::ClearRoster() {
  lists["Franchise.MainList"].clear();
  lists["Franchise.MainRoster"].clear();
  lists["Franchise.TrainList"].clear();
  lists["Franchise.TrainingRoster"].clear();
}

void ReferenceGame::ShowOwnRatings() {
  captions["Franchise.Label9"] = std::to_string(naming.team_overall);
  captions["Franchise.Label12"] = std::to_string(naming.team_offense);
  captions["Franchise.Label15"] = std::to_string(naming.team_defense);
}

void ReferenceGame::SaveRoster() {
  Lines& roster = lists["Franchise.tempList"];
  roster.clear();
  for (const std::string& record : lists["Franchise.MainList"]) roster.push_back(record);
  for (const std::string& record : lists["Franchise.TrainList"]) roster.push_back(record);
  shelf.WriteLines(TeamPath(captions["Franchise.MyRank"], captions["Franchise.TeamName"]), roster);
}

void ReferenceGame::SaveGame() {
  const std::string settings = SettingsPath("settings.fmk");
  shelf.WriteSetting(settings, "Team", captions["Franchise.TeamName"]);
  shelf.WriteSetting(settings, "Rank", captions["Franchise.MyRank"]);
  shelf.WriteSetting(settings, "Week", captions["Franchise.NextWeek"]);
  shelf.WriteSetting(settings, "Season", captions["Franchise.Season"]);
  shelf.WriteSetting(settings, "Champion", captions["Franchise.Champion"]);
  SaveRoster();
  for (const std::string& letter : kLetters) {
    shelf.WriteLines(SettingsPath("StatRank" + letter + ".fmk"),
                     lists["Franchise.StatRank" + letter]);
  }
  shelf.WriteLines(SettingsPath("Alerts.fmk"), lists["Franchise.Alerts"]);
  Tell("information ok: File saved!");
}

void ReferenceGame::PressLoad() {
  const std::string settings = SettingsPath("settings.fmk");
  captions["Franchise.TeamName"] = shelf.ReadSetting(settings, "Team");
  captions["Franchise.MyRank"] = shelf.ReadSetting(settings, "Rank");
  captions["Franchise.NextWeek"] = shelf.ReadSetting(settings, "Week");
  captions["Franchise.Season"] = shelf.ReadSetting(settings, "Season");
  captions["Franchise.Champion"] = shelf.ReadSetting(settings, "Champion");
  Lines& roster = lists["Franchise.tempList"];
  roster.clear();
  LoadPlayerFile(roster, TeamPath(captions["Franchise.MyRank"], captions["Franchise.TeamName"]));
  for (const std::string& record : roster) AddToRoster(record);
  roster.clear();
  LoadNewTeams();
  for (const std::string& letter : kLetters) {
    lists["Franchise.StatRank" + letter].clear();
    LoadSettingsList(lists["Franchise.StatRank" + letter], "StatRank" + letter + ".fmk");
  }
  LoadSettingsList(lists["Franchise.Alerts"], "Alerts.fmk");
  roster.clear();
  LoadPlayerFile(roster, TeamPath(captions["Franchise.MyRank"], captions["Franchise.TeamName"]));
  naming.RateTeam(roster);
  ShowOwnRatings();
  GetNextWeek();
}

void ReferenceGame::PressToTraining(int selected) {
  Lines& records = lists["Franchise.MainList"];
  Lines& shown = lists["Franchise.MainRoster"];
  std::string& record = records.at(static_cast<std::size_t>(selected));
  record = naming.SetField(record, "Training", "Y");
  lists["Franchise.TrainingRoster"].push_back(ItemOf(shown, selected));
  lists["Franchise.TrainList"].push_back(record);
  RemoveFrom(records, selected);
  RemoveFrom(shown, selected);
  SaveRoster();
}

void ReferenceGame::PressToLeadLine(int selected) {
  Lines& records = lists["Franchise.TrainList"];
  Lines& shown = lists["Franchise.TrainingRoster"];
  std::string& record = records.at(static_cast<std::size_t>(selected));
  record = naming.SetField(record, "Training", "N");
  lists["Franchise.MainRoster"].push_back(ItemOf(shown, selected));
  lists["Franchise.MainList"].push_back(record);
  RemoveFrom(records, selected);
  RemoveFrom(shown, selected);
  SaveRoster();
}

}  // namespace frostmark::reference
