#include <cmath>
#include <cstdlib>

#include "tests/reference/reference_game.h"

namespace frostmark::reference {

namespace {

struct Pair {
  int first;
  int second;
};

// The games of weeks 1 to 5. Weeks 6 to 10 play them again.
constexpr Pair kWeeks[5][3] = {
    {{2, 1}, {3, 0}, {4, 5}}, {{3, 4}, {0, 1}, {2, 5}}, {{0, 4}, {2, 3}, {1, 5}},
    {{4, 1}, {5, 3}, {0, 2}}, {{5, 0}, {1, 3}, {4, 2}},
};

// 1 to 10 for a marker that names a week, else 0.
int WeekOf(const std::string& marker) {
  for (int week = 1; week <= 10; ++week) {
    if (marker == "Week " + std::to_string(week)) return week;
  }
  return 0;
}

bool IsNumeric(const std::string& text) {
  char* end = nullptr;
  std::strtod(text.c_str(), &end);
  while (*end == ' ') ++end;
  return text.find_first_not_of(' ') != std::string::npos && *end == '\0';
}

}  // namespace

void ReferenceGame::GenSchedule() {
  captions["Franchise.NextWeek"] = "Week 1";
  for (const std::string& letter : kLetters) {
    Lines& names = lists["Franchise.Rank" + letter];
    Lines& standings = lists["Franchise.StatRank" + letter];
    names.clear();
    standings.clear();
    lists["Franchise.File1"] = shelf.List(app_path_ + "/Teams/Rank " + letter);
    for (const std::string& name : lists["Franchise.File1"]) {
      names.push_back(name);
      standings.push_back("(0-0-0) " + name);
    }
  }
  lists["Franchise.Team1"].clear();
  lists["Franchise.Team2"].clear();
  lists["Franchise.tempList"].clear();
  unwatched.line_list.clear();
  unwatched.def_list.clear();
  unwatched.line1_stats.clear();
  unwatched.line2_stats.clear();
  GetNextWeek();
}

void ReferenceGame::LoadNewTeams() {
  for (const std::string& letter : kLetters) {
    Lines& names = lists["Franchise.Rank" + letter];
    Lines& standings = lists["Franchise.StatRank" + letter];
    lists["Franchise.File1"] = shelf.List(app_path_ + "/Teams/Rank " + letter);
    names.clear();
    standings.clear();
    for (const std::string& name : lists["Franchise.File1"]) {
      if (name == captions["Franchise.TeamName"]) captions["Franchise.MyRank"] = "Rank " + letter;
      names.push_back(name);
      standings.push_back("(0-0-0) " + name);
    }
  }
  captions["Franchise.LooseOrWin"] = "";
  captions["Franchise.Label19"] = "";
}

void ReferenceGame::GetNextWeek() {
  const int week = WeekOf(captions["Franchise.NextWeek"]);
  if (week > 0) {
    for (const std::string& letter : kLetters) {
      const Lines& names = lists["Franchise.Rank" + letter];
      for (const Pair& pair : kWeeks[(week - 1) % 5]) {
        FindOpponent(ItemOf(names, pair.first), ItemOf(names, pair.second), letter);
      }
    }
  }
  naming.RateTeam(lists["Franchise.tempList"]);
  captions["Franchise.OppOverall"] = std::to_string(naming.team_overall);
  captions["Franchise.OppOffense"] = std::to_string(naming.team_offense);
  captions["Franchise.OppDefense"] = std::to_string(naming.team_defense);
}

void ReferenceGame::FindOpponent(const std::string& name1, const std::string& name2,
                                 const std::string& letter) {
  Lines& roster = lists["Franchise.tempList"];
  if (captions["Franchise.TeamName"] == name1) {
    roster.clear();
    if (!name2.empty()) LoadPlayerFile(roster, TeamPath("Rank " + letter, name2));
    captions["Franchise.OppTeam"] = name2;
  }
  if (captions["Franchise.TeamName"] == name2) {
    roster.clear();
    if (!name1.empty()) LoadPlayerFile(roster, TeamPath("Rank " + letter, name1));
    captions["Franchise.OppTeam"] = name1;
  }
}

bool ReferenceGame::LineUpAccepted() {
  const Lines positions = {"GO", "LD", "RD", "RF", "CF", "LF"};
  bool missing = false;
  bool doubled = false;
  for (const std::string& position : positions) {
    int count = 0;
    for (const std::string& record : lists["Franchise.MainList"]) {
      if (GetField(record, "Position") == position) ++count;
    }
    if (count == 0) missing = true;
    if (count > 1) doubled = true;
  }
  if (missing) {
    Tell("stop ok: You are missing a position!");
    cancel_visible = false;
    return false;
  }
  if (doubled && Asked("information yes no: You have too many players on your lineup.\nWould you "
                       "like to move one to training?")) {
    cancel_visible = false;
    return false;
  }
  return true;
}

void ReferenceGame::PressBegin() {
  try {
    BeginOnce();
  } catch (const EndlessLoad&) {
    ++endless_loads;
  }
}

void ReferenceGame::BeginOnce() {
  if (!LineUpAccepted()) return;
  captions["Franchise.LooseOrWin"] = "";
  captions["Franchise.Label19"] = "";
  const int week = WeekOf(captions["Franchise.NextWeek"]);
  if (week > 0) {
    for (const std::string& letter : kLetters) {
      const Lines& names = lists["Franchise.Rank" + letter];
      for (const Pair& pair : kWeeks[(week - 1) % 5]) {
        PlayGame(ItemOf(names, pair.first), ItemOf(names, pair.second), letter);
      }
    }
    captions["Franchise.NextWeek"] = week == 10 ? "Off Season" : "Week " + std::to_string(week + 1);
  } else {
    if (captions["Franchise.NextWeek"] == "Off Season") {
      sim_running = false;
      cancel_visible = false;
      TheOffSeason();
    }
    if (captions["Franchise.NextWeek"] == "Draft") captions["Franchise.NextWeek"] = "Week 1";
  }
  for (const std::string& letter : kLetters) SortRankList(lists["Franchise.StatRank" + letter]);
  LoadOwnRoster();
  ClearRoster();
  LoadOwnRoster();
  TrimAlerts();
  GetNextWeek();
}

void ReferenceGame::LoadOwnRoster() {
  Lines& roster = lists["Franchise.tempList"];
  roster.clear();
  LoadPlayerFile(roster, TeamPath(captions["Franchise.MyRank"], captions["Franchise.TeamName"]));
  for (const std::string& record : roster) AddToRoster(record);
  naming.RateTeam(roster);
  ShowOwnRatings();
}

void ReferenceGame::PressSim() {
  const std::string marker = captions["Franchise.NextWeek"];
  if (marker == "Off Season") {
    Tell("stop ok: You can't simulate the off season!");
    return;
  }
  const std::string answer = AskedText("Simulate until which week?");
  if (!IsNumeric(answer)) {
    Tell("stop ok: You must enter a valid number!");
    return;
  }
  const double target = std::floor(std::strtod(answer.c_str(), nullptr));
  const std::size_t word = marker.find("Week ");
  const double current = std::nearbyint(LeadingNumber(word == 0 ? marker.substr(5) : marker));
  if (target <= current) {
    Tell("stop ok: You must select a week greater than your current!");
    return;
  }
  if (current > 11) {
    Tell("stop ok: You can't simulate beyond the currect schedule!");
    return;
  }
  sim_running = true;
  cancel_visible = !cancels;
  cancels = false;
  const std::string wanted = "Week " + std::to_string(static_cast<long>(target));
  try {
    do {
      BeginOnce();
    } while (captions["Franchise.NextWeek"] != wanted && cancel_visible);
  } catch (const EndlessLoad&) {
    ++endless_loads;
    return;
  }
  sim_running = false;
  cancel_visible = false;
}

void ReferenceGame::PressTesting() { captions["Franchise.NextWeek"] = "Off Season"; }

}  // namespace frostmark::reference
