#include <vector>

#include "tests/reference/reference_game.h"

namespace frostmark::reference {

namespace {

struct CityAndNickname {
  const char* city;
  const char* nickname;
};

const std::vector<CityAndNickname> kTowns = {
    {"Binghamton", "Whalers"},     {"Baltimore", "Clippers"},   {"Boston", "Braves"},
    {"Chicago", "Cougars"},        {"Cleveland", "Crusaders"},  {"Denver", "Blizzard"},
    {"Edmonton", "Roadrunners"},   {"Houston", "Aeros"},        {"Indianapolis", "Capitals"},
    {"Jacksonville", "Barons"},    {"Juneau", "Eskimos"},       {"Manitoba", "Moose"},
    {"Minneasota", "North Stars"}, {"New Jersey", "Knights"},   {"New York", "Raiders"},
    {"Ottawa", "Nationals"},       {"Philadelphia", "Quakers"}, {"Phoenix", "Heat"},
    {"Pittsburgh", "Hornets"},     {"Quebec", "Citadelles"},    {"Rhode Island", "Reds"},
    {"Richmond", "Robins"},        {"Sakatoon", "Sheiks"},      {"San Diego", "Mariners"},
    {"Seattle", "Metropolitans"},  {"Syracuse", "Firebirds"},   {"Toronto", "Toros"},
    {"Utah", "Grizzlies"},         {"Utica", "Devils"},         {"Vancouver", "Maroons"},
    {"Victoria", "Senators"},      {"Virginia", "Wings"},       {"Winnipeg", "Jets"},
    {"Worcester", "Ice Cats"},     {"Los Angeles", "Freeze"},
};

bool InBand(const std::string& rank, int overall) {
  if (rank == "Rank F") return overall <= 80;
  if (rank == "Rank E") return 80 <= overall && overall <= 82;
  if (rank == "Rank D") return 82 <= overall && overall < 84;
  if (rank == "Rank C") return 85 <= overall && overall <= 86;
  if (rank == "Rank B") return 86 <= overall && overall <= 88;
  return overall >= 88;
}

}  // namespace

void ReferenceGame::GenTeam() {
  const Lines positions = {"GO", "RD", "LD", "RF", "CF", "LF"};
  lists["TeamCreator.List1"].clear();
  for (int i = 0; i < 6; ++i) MakePlayer(ItemOf(positions, i), "N");
  for (int i = 1; i < 6; ++i) MakePlayer(ItemOf(positions, i), "Y");
  naming.RateTeam(lists["TeamCreator.List1"]);
  captions["TeamCreator.Label5"] = std::to_string(naming.team_offense);
  captions["TeamCreator.Label6"] = std::to_string(naming.team_defense);
  captions["TeamCreator.Label7"] = std::to_string(naming.team_overall);
}

void ReferenceGame::MakePlayer(const std::string& position, const std::string& training) {
  const std::string name = RolledName("GenTeam");
  naming.GenPlayerRatings(position, false, rolls);
  lists["TeamCreator.List1"].push_back(
      name + "," + position + "," + std::to_string(naming.cur_overall) + "," +
      std::to_string(naming.cur_passing) + "," + std::to_string(naming.cur_shooting) + "," +
      std::to_string(naming.cur_defense) + "," + std::to_string(naming.cur_agility) + "," +
      std::to_string(naming.cur_age) + "," + training);
}

void ReferenceGame::BuildLeague() {
  Tell("information ok: Please wait as this may take some time...");
  for (const CityAndNickname& town : kTowns) {
    lists["Startup.List3"].push_back(town.city);
    lists["Startup.List4"].push_back(town.nickname);
  }
  for (const std::string& letter : kLetters) {
    const std::string folder = app_path_ + "/Teams/Rank " + letter;
    lists["Startup.File1"] = shelf.List(folder);
    for (const std::string& name : lists["Startup.File1"]) shelf.files.erase(folder + "/" + name);
  }
  for (const std::string& letter : kLetters) {
    const int teams = letter == "F" ? 5 : 6;
    for (int made = 0; made < teams; ++made) BuildTeam("Rank " + letter);
  }
  captions["Franchise.Season"] = "0";
  captions["Franchise.Champion"] = "0";
}

void ReferenceGame::BuildTeam(const std::string& rank) {
  do {
    GenTeam();
  } while (!InBand(rank, StrictNumber(captions["TeamCreator.Label7"])));
  Lines& cities = lists["Startup.List3"];
  Lines& nicknames = lists["Startup.List4"];
  const int city_at = rolls.Next(CountOf(cities), "BuildLeague, city") - 1;
  const std::string city = ItemOf(cities, city_at);
  RemoveFrom(cities, city_at);
  const int nickname_at = rolls.Next(CountOf(nicknames), "BuildLeague, nickname") - 1;
  const std::string nickname = ItemOf(nicknames, nickname_at);
  RemoveFrom(nicknames, nickname_at);
  shelf.WriteLines(TeamPath(rank, city + " " + nickname), lists["TeamCreator.List1"]);
}

void ReferenceGame::PressNew() {
  lists["Startup.File1"] = shelf.List(app_path_ + "/Teams/Rank F");
  if (CountOf(lists["Startup.File1"]) == 6) {
    if (!Asked("stop yes no: There is already a loaded game in progress. Would you like to create "
               "a new game?\nWarning: Doing this will delete your last game.")) {
      return;
    }
    BuildLeague();
  }
  if (lists["Startup.File1"].empty()) BuildLeague();
}

void ReferenceGame::PressGenerate() {
  GenTeam();
  captions["Startup.Label10"] = std::to_string(naming.team_offense);
  captions["Startup.Label9"] = std::to_string(naming.team_defense);
  captions["Startup.Label8"] = std::to_string(naming.team_overall);
  lists["Startup.List1"].clear();
  lists["Startup.List2"].clear();
  const Lines& roster = lists["TeamCreator.List1"];
  for (int i = CountOf(roster) - 1; i >= 0; --i) {
    const std::string record = ItemOf(roster, i);
    if (GetField(record, "Training") == "N") lists["Startup.List1"].push_back(PanelLine(record));
    if (GetField(record, "Training") == "Y") lists["Startup.List2"].push_back(PanelLine(record));
  }
}

void ReferenceGame::PressBeginOfPanel(const std::string& city, const std::string& nickname) {
  const std::string team = city + " " + nickname;
  const Lines roster = lists["TeamCreator.List1"];
  shelf.WriteLines(TeamPath("Rank F", team), roster);
  for (const std::string& record : roster) AddToRoster(record);
  ShowOwnRatings();
  captions["Franchise.TeamName"] = team;
  LoadNewTeams();
  GenSchedule();
  captions["Franchise.MyRank"] = "Rank F";
  GetNextWeek();
  SaveGame();
}

}  // namespace frostmark::reference
