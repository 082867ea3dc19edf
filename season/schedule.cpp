#include <algorithm>

#include "program/program.h"
#include "records/leagues.h"
#include "records/lines/standings_line.h"
#include "season/week_table.h"

namespace frostmark {

void Franchise::GenSchedule() {
  NextWeek.SetCaption("Week 1");
  for (std::size_t league = 0; league < kRanks.size(); ++league) {
    ListBox& names = *RankLists()[league];
    ListBox& standings = *StatRankLists()[league];
    names.Clear();
    standings.Clear();
    File1.SetPath(program_.ordvik.RankFolder(kRanks[league]));
    const int count = File1.ListCount();
    for (int i = 0; i < count; ++i) {
      names.AddItem(File1.List(i));
      standings.AddItem(FormatFreshStandingsLine(File1.List(i)));
      program_.front_end.Yield();
    }
  }
  for (ListBox* list : {&Team1, &Team2, &tempList, &LineList, &DefList, &Line1Stats, &Line2Stats}) {
    list->Clear();
  }
  GetNextWeek();
}

void Franchise::GetNextWeek() {
  if (const auto week = WeekOf(NextWeek.Caption())) {
    // All eighteen games are looked through; at most one of them is the user's.
    for (std::size_t league = 0; league < kRanks.size(); ++league) {
      const ListBox& names = *RankLists()[league];
      for (const Fixture& game : FixturesOf(*week)) {
        const std::string first = names.List(game.first);
        FindOpponent(first, std::string(names.List(game.second)), LetterOf(kRanks[league]));
      }
    }
  }
  // Out of season tempList still holds what the week's end left in it: the user's own roster.
  const HockeyNaming& naming = program_.hockey_naming;
  program_.hockey_naming.RateTeam(tempList);
  OppOverall.SetCaption(std::to_string(naming.TeamOverall));
  OppOffense.SetCaption(std::to_string(naming.TeamOffense));
  OppDefense.SetCaption(std::to_string(naming.TeamDefense));
}

void Franchise::FindOpponent(const std::string& name1, const std::string& name2,
                             const std::string& rank) {
  const auto meet = [&](const std::string& opponent) {
    tempList.Clear();
    const auto* const league = std::find_if(
        kRanks.begin(), kRanks.end(), [&](const char* name) { return LetterOf(name) == rank; });
    // In a league that has lost a team somebody meets nobody, and there is no file to read.
    if (league != kRanks.end() && !opponent.empty()) {
      program_.ordvik.LoadPlayerFile(tempList, program_.ordvik.TeamPath(*league, opponent));
    }
    OppTeam.SetCaption(opponent);
  };
  if (TeamName.Caption() == name1) meet(name2);
  if (TeamName.Caption() == name2) meet(name1);
}

}  // namespace frostmark
