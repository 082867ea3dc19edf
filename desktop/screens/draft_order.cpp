#include "desktop/screens/draft_order.h"

#include <QString>
#include <QStringList>
#include <algorithm>
#include <array>
#include <cstddef>

#include "draft/f_draft.h"
#include "draft/f_results.h"
#include "records/leagues.h"
#include "records/lines/standings_line.h"
#include "shell/franchise.h"

namespace frostmark {
namespace {

QString TeamAt(const RecordList& table, int place) {
  const std::string line = table.List(place);
  const std::string_view team = StandingsParts(line).team;
  return QString::fromUtf8(team.data(), static_cast<int>(team.size()));
}

// The teams of LEAGUE, which counts from "Rank F", in the new season: those of its last table, but
// for the ones that have moved.
QStringList TeamsOf(std::size_t league, const Franchise& franchise, const FResults& results) {
  const std::array<const ListBox*, kRankCount> tables = {
      &franchise.StatRankF, &franchise.StatRankE, &franchise.StatRankD,
      &franchise.StatRankC, &franchise.StatRankB, &franchise.StatRankA};
  constexpr int kLast = kTeamsInLeague - 1;
  QStringList teams;
  for (int i = 0; i < tables[league]->ListCount(); ++i) teams << TeamAt(*tables[league], i);
  if (teams.size() != kTeamsInLeague) return {};
  if (league + 1 < tables.size() && results.crossed[league]) {
    teams.first() = TeamAt(*tables[league + 1], kLast);
  }
  if (league > 0 && results.crossed[league - 1]) teams.last() = TeamAt(*tables[league - 1], 0);
  return teams;
}

// The league called RANK, from "Rank F", or all their count.
std::size_t LeagueOf(const std::string& rank) {
  return static_cast<std::size_t>(std::find(kRanks.begin(), kRanks.end(), rank) - kRanks.begin());
}

// The turn of TEAM in LEAGUE: the best league goes first, the last name first within it. Nothing
// for a team that is not among TEAMS.
std::optional<int> TurnOf(const QString& team, std::size_t league, QStringList teams) {
  teams.sort(Qt::CaseInsensitive);
  const auto place = static_cast<int>(teams.indexOf(team));
  if (place < 0 || league >= kRanks.size()) return {};
  const int leagues_before = kRankCount - 1 - static_cast<int>(league);
  return leagues_before * kTeamsInLeague + static_cast<int>(teams.size()) - place;
}

}  // namespace

std::optional<DraftPlace> PlaceInDraft(const FDraft& draft) {
  QStringList in_turn;
  for (int i = 0; i < draft.File1.ListCount(); ++i) {
    in_turn << QString::fromStdString(draft.File1.List(i));
  }
  const auto now = TurnOf(QString::fromStdString(draft.CurTeam.Caption()),
                          LeagueOf(draft.CurRank.Caption()), in_turn);
  if (!now) return {};
  DraftPlace place{*now, {}, kRankCount * kTeamsInLeague};
  const auto* franchise = dynamic_cast<const Franchise*>(draft.Screens().Find("Franchise"));
  const auto* results = dynamic_cast<const FResults*>(draft.Screens().Find("FResults"));
  if (franchise == nullptr || results == nullptr) return place;
  const std::string& own_rank = franchise->MyRank.Caption();
  const std::size_t own_league = LeagueOf(own_rank);
  if (own_league >= kRanks.size()) return place;
  place.own = TurnOf(
      QString::fromStdString(franchise->TeamName.Caption()), own_league,
      own_rank == draft.CurRank.Caption() ? in_turn : TeamsOf(own_league, *franchise, *results));
  return place;
}

}  // namespace frostmark
