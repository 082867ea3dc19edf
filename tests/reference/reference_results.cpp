#include "tests/reference/reference_game.h"

namespace frostmark::reference {

void ReferenceGame::PlayGame(const std::string& name1, const std::string& name2,
                             const std::string& rank) {
  Lines& team1 = lists["Franchise.Team1"];
  Lines& team2 = lists["Franchise.Team2"];
  const std::string path1 = TeamPath("Rank " + rank, name1);
  const std::string path2 = TeamPath("Rank " + rank, name2);
  team1.clear();
  team2.clear();
  LoadPlayerFile(team1, path1);
  LoadPlayerFile(team2, path2);
  const std::string own = captions["Franchise.TeamName"];
  const bool is_own = own == name2 || own == name1;
  if (is_own && !sim_running) {
    WatchGame(name1, name2);
  } else {
    naming.RateTeam(team1);
    score1 = 0;
    naming.RateTeam(team2);
    score2 = 0;
    unwatched.LoadGameLines(team1, team2);
    unwatched.SimulateGame(rolls);
    score1 = unwatched.goals_team1;
    score2 = unwatched.goals_team2;
  }
  SetStandings(lists["Franchise.StatRank" + rank], name1, name2);
  TrainThem(team1, path1);
  TrainThem(team2, path2);
  if (is_own) ShowOwnResult(name1, name2);

  const std::string goals1 = std::to_string(score1);
  const std::string goals2 = std::to_string(score2);
  std::string news;
  if (score1 > score2) news = name1 + " beat " + name2 + " " + goals1 + " to " + goals2;
  if (score2 > score1) news = name1 + " lost to " + name2 + " " + goals1 + " to " + goals2;
  if (score1 == score2) news = name1 + " tied " + name2 + " at " + goals1;
  Lines& alerts = lists["Franchise.Alerts"];
  alerts.insert(alerts.begin(), news);
}

void ReferenceGame::WatchGame(const std::string& name1, const std::string& name2) {
  franchise_match = true;
  SetUpMatch(lists["Franchise.Team1"], name1, lists["Franchise.Team2"], name2);
  captions["Franchise.OppTeam"] = "";
  captions["Franchise.OppOverall"] = "";
  captions["Franchise.OppOffense"] = "";
  captions["Franchise.OppDefense"] = "";
  watch(*this);
}

void ReferenceGame::ShowOwnResult(const std::string& name1, const std::string& name2) {
  const std::string own = captions["Franchise.TeamName"];
  const std::string goals1 = std::to_string(score1);
  const std::string goals2 = std::to_string(score2);
  std::string& result = captions["Franchise.LooseOrWin"];
  if (own == name1) {
    result = (score1 > score2 ? "You won " : "You lost ") + goals1 + " - " + goals2;
    captions["Franchise.Label19"] = "vs " + name2;
  }
  if (own == name2) {
    result = (score1 < score2 ? "You won " : "You lost ") + goals2 + " - " + goals1;
    captions["Franchise.Label19"] = "vs " + name1;
  }
  if (score1 == score2) result = "You tied at " + goals2;
}

void ReferenceGame::SetStandings(Lines& list, const std::string& name1, const std::string& name2) {
  std::string first = name2;
  std::string first_result = "Tie";
  std::string second = name1;
  std::string second_result = "Tie";
  if (score1 > score2) {
    first = name1;
    first_result = "Win";
    second = name2;
    second_result = "Lose";
  }
  if (score1 < score2) {
    first_result = "Win";
    second_result = "Lose";
  }
  for (std::string& line : list) {
    if (!Contains(line, first)) continue;
    line = CountResult(line, first_result);
    break;
  }
  for (std::string& line : list) {
    if (Contains(line, second)) line = CountResult(line, second_result);
  }
}

void ReferenceGame::TrimAlerts() {
  Lines& alerts = lists["Franchise.Alerts"];
  const int count = CountOf(alerts);
  if (count - 1 <= 25) return;
  for (int i = 0; i <= count - 1; ++i) {
    if (i > 25 && !ItemOf(alerts, i).empty()) RemoveFrom(alerts, i);
  }
}

void ReferenceGame::TrainThem(Lines& list, const std::string& path) {
  const int count = CountOf(list);
  for (int i = 0; i < count; ++i) {
    if (GetField(ItemOf(list, i), "Training") == "Y") {
      if (rolls.Next(100, "TrainThem, chance of training") <= 65) {
        const int r = rolls.Next(5, "TrainThem, skill of training");
        const Lines skills = {"", "Passing", "Shooting", "Passing", "Defense", "Agility"};
        Develop(list, i, ItemOf(skills, r));
      }
    }
    if (GetField(ItemOf(list, i), "Position") == "GO") {
      if (rolls.Next(100, "TrainThem, chance of the goalie") <= 20) {
        const int g = rolls.Next(2, "TrainThem, skill of the goalie");
        Develop(list, i, g == 1 ? "Passing" : "Defense");
      }
    }
    if (captions["Franchise.NextWeek"] == "Week 10") {
      std::string& record = list.at(static_cast<std::size_t>(i));
      record = naming.SetField(record, "Age", "1");
    }
  }
  if (!Contains(path, captions["Franchise.TeamName"])) naming.SetTrainingFlags(list);
  shelf.WriteLines(path, list);
}

void ReferenceGame::Develop(Lines& list, int i, const std::string& skill) {
  std::string& record = list.at(static_cast<std::size_t>(i));
  const double age = LeadingNumber(GetField(record, "Age"));
  int change = 0;
  if (age < 25) {
    change = rolls.Next(4, "TrainThem, change below 25");
  } else if (age == 25 || age == 26 || age == 27) {
    change = rolls.Next(2, "TrainThem, change from 25 to 27");
  } else if (age > 29) {
    change = -rolls.Next(3, "TrainThem, change above 29");
  } else {
    return;
  }
  record = naming.SetField(record, skill, std::to_string(change));
}

}  // namespace frostmark::reference
