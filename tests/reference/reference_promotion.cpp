#include <cmath>
#include <vector>

#include "tests/reference/reference_game.h"

namespace frostmark::reference {

namespace {

struct LeagueResult {
  const char* letter;
  const char* winner_to;
  const char* winner_label;
  const char* loser_to;
  const char* loser_label;
};

// From the bottom to the last but one. An empty league: the team stays.
const std::vector<LeagueResult> kLadder = {
    {"F", "Rank E", "FResults.Label24", "", "FResults.Label23"},
    {"E", "Rank D", "FResults.Label12", "Rank F", "FResults.Label11"},
    {"D", "Rank C", "FResults.Label20", "Rank E", "FResults.Label19"},
    {"C", "Rank B", "FResults.Label8", "Rank D", "FResults.Label7"},
    {"B", "Rank A", "FResults.Label16", "Rank C", "FResults.Label15"},
};

std::string OneMore(const std::string& number) {
  return std::to_string(static_cast<long>(std::floor(LeadingNumber(number))) + 1);
}

}  // namespace

void ReferenceGame::TheOffSeason() {
  for (const LeagueResult& league : kLadder) {
    const std::string rank = std::string("Rank ") + league.letter;
    const Lines& standings = lists[std::string("Franchise.StatRank") + league.letter];
    const std::string winner = TeamBehindRecord(ItemOf(standings, 0));
    MoveTeam(winner, rank, league.winner_to);
    captions[league.winner_label] = winner;
    FollowIfOwn(winner, league.winner_to);
    const std::string loser = TeamBehindRecord(ItemOf(standings, 5));
    const bool goes_down = *league.loser_to != '\0';
    if (goes_down) MoveTeam(loser, rank, league.loser_to);
    captions[league.loser_label] = loser;
    if (goes_down) FollowIfOwn(loser, league.loser_to);
  }
  const std::string champion = TeamBehindRecord(ItemOf(lists["Franchise.StatRankA"], 0));
  if (champion == captions["Franchise.TeamName"]) {
    Tell("information ok: Congrats! You are the best in all the leagues!");
    captions["Franchise.Champion"] = OneMore(captions["Franchise.Champion"]);
  }
  captions["FResults.Label5"] = champion;
  captions["FResults.Champ"] = champion;
  const std::string last = TeamBehindRecord(ItemOf(lists["Franchise.StatRankA"], 5));
  MoveTeam(last, "Rank A", "Rank B");
  captions["FResults.Label6"] = last;
  FollowIfOwn(last, "Rank B");

  lists["FResults.List1"] = lists["Franchise.StatRankA"];
  lists["FResults.List2"] = lists["Franchise.StatRankB"];
  lists["FResults.List3"] = lists["Franchise.StatRankC"];
  lists["FResults.List4"] = lists["Franchise.StatRankD"];
  lists["FResults.List5"] = lists["Franchise.StatRankE"];
  lists["FResults.List6"] = lists["Franchise.StatRankF"];
  captions["Franchise.Season"] = OneMore(captions["Franchise.Season"]);
  captions["Franchise.NextWeek"] = "Draft";
}

void ReferenceGame::MoveTeam(const std::string& team, const std::string& from,
                             const std::string& to) {
  const std::string folder = app_path_ + "/Teams/" + from + "/";
  std::string other = folder;
  for (std::size_t at = other.find(from); at != std::string::npos;
       at = other.find(from, at + to.size())) {
    other.replace(at, from.size(), to);
  }
  shelf.Move(folder + team, other + team);
}

void ReferenceGame::FollowIfOwn(const std::string& team, const std::string& rank) {
  if (team == captions["Franchise.TeamName"]) captions["Franchise.MyRank"] = rank;
}

}  // namespace frostmark::reference
