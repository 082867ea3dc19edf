#include "tools/measure_years/yearbook.h"

#include <algorithm>
#include <cstdio>

#include "records/lines/standings_line.h"

namespace frostmark {
namespace {

constexpr std::array kBandNames = {"18-20", "21-24", "25-27", "28-29",
                                   "30",    "31-34", "35-39", "40 on"};
constexpr std::array kBandEnds = {20, 24, 27, 29, 30, 34, 39};

constexpr std::array<std::size_t, 10> kYearsShown = {0, 1, 2, 5, 10, 20, 50, 100, 150, 200};

std::string Fixed(double value, int digits) {
  std::array<char, 64> text{};
  (void)std::snprintf(text.data(), text.size(), "%.*f", digits, value);
  return text.data();
}

// A row of a table.
template <typename Cells>
void Row(std::ostream& page, const std::string& head, const Cells& cells) {
  page << "| " << head << " |";
  for (const auto& cell : cells) page << ' ' << cell << " |";
  page << '\n';
}

void Rule(std::ostream& page, std::size_t cells) {
  page << "|---|";
  for (std::size_t i = 0; i < cells; ++i) page << "--:|";
  page << '\n';
}

bool Contains(const std::string& text, const char* sought) {
  return Ordvik::ContainsText(1, text, sought);
}

}  // namespace

std::size_t Yearbook::BandOf(double age) {
  std::size_t band = 0;
  while (band < kBandEnds.size() && age > kBandEnds[band]) ++band;
  return band;
}

void Yearbook::NoteRosters(Program& program) {
  user_ = program.franchise.TeamName.Caption();
  Rosters noted;
  int all = 0;
  for (std::size_t league = 0; league < kRanks.size(); ++league) {
    RecordList players;
    const ListBox& names = *program.franchise.RankLists()[league];
    for (int i = 0; i < names.ListCount(); ++i) {
      program.ordvik.LoadPlayerFile(players,
                                    program.ordvik.TeamPath(kRanks[league], names.List(i)));
    }
    for (int i = 0; i < players.ListCount(); ++i) {
      noted.mean_overall[league] += LenientNumber(FieldView(players.List(i), Field::kOverall));
      const double age = LenientNumber(FieldView(players.List(i), Field::kAge));
      noted.ages[BandOf(age)] += 1;
      noted.oldest = std::max(noted.oldest, age);
    }
    noted.mean_overall[league] /= players.ListCount();
    all += players.ListCount();
  }
  for (double& share : noted.ages) share /= all;
  rosters_.push_back(noted);
}

void Yearbook::NoteSeason(Program& program) {
  Season season;
  const ListBox& events = program.f_draft.Events;
  for (int i = 0; i < events.ListCount(); ++i) {
    if (Contains(events.List(i), " has retired from ")) ++season.retired;
    if (Contains(events.List(i), " lost (")) ++season.let_go;
  }
  FResults& results = program.f_results;
  const std::array<const ListBox*, kRankCount> tables = {&results.List6, &results.List5,
                                                         &results.List4, &results.List3,
                                                         &results.List2, &results.List1};
  for (std::size_t league = 0; league < kRanks.size(); ++league) {
    for (int i = 0; i < tables[league]->ListCount(); ++i) {
      const std::string line = tables[league]->List(i);
      int wins = 0;
      int losses = 0;
      int ties = 0;
      if (std::sscanf(line.c_str(), "(%d-%d-%d)", &wins, &losses, &ties) != 3) continue;
      season.games += wins + losses + ties;  // each game twice, and each tie
      season.ties += ties;
      if (StandingsParts(line).team == user_) season.users_rank = kRanks[league];
    }
  }
  season.champion = results.Champ.Caption();
  seasons_.push_back(season);
}

void Yearbook::Print(std::ostream& page) const {
  PrintOverall(page);
  PrintAges(page);
  PrintSeasons(page);
  PrintChampions(page);
}

void Yearbook::PrintOverall(std::ostream& page) const {
  page << "## Mean Overall of the players of a league\n\n";
  Row(page, "After year", kRanks);
  Rule(page, kRanks.size());
  for (const std::size_t year : kYearsShown) {
    if (year >= rosters_.size()) continue;
    std::vector<std::string> cells;
    for (const double mean : rosters_[year].mean_overall) cells.push_back(Fixed(mean, 1));
    Row(page, year == 0 ? "0 (new)" : std::to_string(year), cells);
  }
}

void Yearbook::PrintAges(std::ostream& page) const {
  page << "\n## Ages at the beginning of a season, in percent\n\n";
  Row(page, "After year", kBandNames);
  Rule(page, kBandNames.size());
  for (const std::size_t year : kYearsShown) {
    if (year >= rosters_.size()) continue;
    std::vector<std::string> cells;
    for (const double share : rosters_[year].ages) cells.push_back(Fixed(100 * share, 1));
    Row(page, year == 0 ? "0 (new)" : std::to_string(year), cells);
  }
  const auto oldest =
      std::max_element(rosters_.begin(), rosters_.end(),
                       [](const Rosters& a, const Rosters& b) { return a.oldest < b.oldest; });
  page << "\nThe oldest player of all was " << Fixed(oldest->oldest, 0) << ".\n";
}

void Yearbook::PrintSeasons(std::ostream& page) const {
  page << "\n## A year\n\n| | mean | least | most |\n|---|--:|--:|--:|\n";
  const auto row = [&](const char* what, int digits, auto value_of) {
    double sum = 0;
    double least = value_of(seasons_.front());
    double most = least;
    for (const Season& season : seasons_) {
      const double value = value_of(season);
      sum += value;
      least = std::min(least, value);
      most = std::max(most, value);
    }
    Row(page, what,
        std::array{Fixed(sum / static_cast<double>(seasons_.size()), 1), Fixed(least, digits),
                   Fixed(most, digits)});
  };
  row("Retirements", 0, [](const Season& s) { return static_cast<double>(s.retired); });
  row("Players let go", 0, [](const Season& s) { return static_cast<double>(s.let_go); });
  row("Ties, percent of all games", 1, [](const Season& s) { return 100.0 * s.ties / s.games; });
}

void Yearbook::PrintChampions(std::ostream& page) const {
  std::map<std::string, int> titles;
  std::map<std::string, int> years_of_user;
  int run = 0;
  int longest_run = 0;
  std::string last;
  for (const Season& season : seasons_) {
    run = season.champion == last ? run + 1 : 1;
    last = season.champion;
    longest_run = std::max(longest_run, run);
    ++titles[season.champion];
    ++years_of_user[season.users_rank];
  }
  int most_titles = 0;
  for (const auto& [team, count] : titles) most_titles = std::max(most_titles, count);
  page << "\n## Champions\n\n| | |\n|---|--:|\n";
  Row(page, "Teams that were champion", std::array{std::to_string(titles.size())});
  Row(page, "Most titles of one team", std::array{std::to_string(most_titles)});
  Row(page, "Most titles in a row", std::array{std::to_string(longest_run)});
  const auto of_user = titles.find(user_);
  Row(page, "Titles of the user's team",
      std::array{std::to_string(of_user == titles.end() ? 0 : of_user->second)});
  for (const char* rank : kRanks) {
    Row(page, std::string("Seasons of the user's team in ") + rank,
        std::array{std::to_string(years_of_user[rank])});
  }
}

}  // namespace frostmark
