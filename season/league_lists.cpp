#include "program/program.h"
#include "records/leagues.h"
#include "records/lines/standings_line.h"

namespace frostmark {

void Franchise::LoadNewTeams() {
  for (std::size_t league = 0; league < kRanks.size(); ++league) {
    ListBox& names = *RankLists()[league];
    ListBox& standings = *StatRankLists()[league];
    File1.SetPath(program_.ordvik.RankFolder(kRanks[league]));
    names.Clear();
    standings.Clear();
    const int count = File1.ListCount();
    for (int i = 0; i < count; ++i) {
      if (File1.List(i) == TeamName.Caption()) MyRank.SetCaption(kRanks[league]);
      names.AddItem(File1.List(i));
      standings.AddItem(FormatFreshStandingsLine(File1.List(i)));
      program_.front_end.Yield();
    }
  }
  LooseOrWin.SetCaption("");
  Label19.SetCaption("");
}

void Franchise::LoadNewTeamsTwo() {
  for (std::size_t league = 0; league < kRanks.size(); ++league) {
    ListBox& names = *RankLists()[league];
    names.Clear();
    File1.SetPath(program_.ordvik.RankFolder(kRanks[league]));
    const int count = File1.ListCount();
    for (int i = 0; i < count; ++i) {
      names.AddItem(File1.List(i));
      program_.front_end.Yield();
    }
  }
  GetNextWeek();
}

}  // namespace frostmark
