#include <algorithm>
#include <filesystem>
#include <optional>
#include <system_error>
#include <vector>

#include "program/program.h"
#include "records/leagues.h"
#include "records/whole_file.h"

namespace frostmark {
namespace {

std::string SavedFile(const Ordvik& ordvik, const ListBox& list) {
  return ordvik.SettingsPath(list.Name() + ".fmk");
}

}  // namespace

void Franchise::SaveGame() {
  Ordvik& ordvik = program_.ordvik;
  // All files of Settings reach the disk together, so that a program killed here leaves one game
  // and not a mixture of two.
  FileStore::Save save(ordvik.files());
  ordvik.WriteSettings({{"Team", TeamName.Caption()},
                        {"Rank", MyRank.Caption()},
                        {"Week", NextWeek.Caption()},
                        {"Season", Season.Caption()},
                        {"Champion", Champion.Caption()}},
                       save);
  tempList.Clear();
  for (const ListBox* line : {&MainList, &TrainList}) {
    const int count = line->ListCount();
    for (int i = 0; i < count; ++i) {
      tempList.AddItem(line->List(i));
      program_.front_end.Yield();
    }
  }
  ordvik.SaveListFile(tempList, UserTeamPath());
  for (const ListBox* standings : StatRankLists()) {
    ordvik.SaveListFile(*standings, SavedFile(ordvik, *standings), save);
  }
  ordvik.SaveListFile(Alerts, SavedFile(ordvik, Alerts), save);
  if (save.Commit()) program_.under_way.Saved();
  // Said in any case: no file operation tells how it went.
  program_.front_end.ShowBox({BoxIcon::kInformation, BoxButtons::kOk, "File saved!"});
}

bool Franchise::IsSaved() const {
  const auto values = program_.ordvik.ReadSettings({"Team", "Rank", "Week", "Season", "Champion"});
  return values && *values == std::vector{TeamName.Caption(), MyRank.Caption(), NextWeek.Caption(),
                                          Season.Caption(), Champion.Caption()};
}

namespace {

struct SavedGame {
  std::string team;
  std::string league;
  std::string week;
  std::string season;
  std::string champion;
  std::vector<ListBox*> lists;  // those that have a file
};

// The league of the saved franchise: the saved one or, when the program ended between a promotion
// and the save after it, the one where the team now lies. Empty when the team is nowhere.
std::string LeagueOf(const Ordvik& ordvik, const std::string& team, const std::string& saved) {
  if (!Ordvik::IsFileName(team)) return {};
  const auto lies_in = [&](std::string_view rank) {
    return Ordvik::FileExists(ordvik.TeamPath(rank, team));
  };
  for (const char* rank : kRanks) {
    if (saved == rank && lies_in(rank)) return rank;
  }
  for (const char* rank : kRanks) {
    if (lies_in(rank)) return rank;
  }
  return {};
}

bool CanBeListed(const std::string& folder) {
  std::error_code error;
  std::filesystem::directory_iterator entry(folder, error);
  while (!error && entry != std::filesystem::directory_iterator()) entry.increment(error);
  return !error;
}

// The lists among LISTS that have a file. A list without one was empty or has been lost, and is
// taken as empty. Nothing when a file is there and cannot be read.
std::optional<std::vector<ListBox*>> SavedLists(Ordvik& ordvik,
                                                const std::vector<ListBox*>& lists) {
  std::vector<ListBox*> saved;
  for (ListBox* list : lists) {
    const std::string path = SavedFile(ordvik, *list);
    if (ordvik.files().Read(path)) {
      saved.push_back(list);
    } else if (!NothingLiesAt(path)) {
      return std::nullopt;
    }
  }
  return saved;
}

// What a saved game consists of, all of it looked at before anything is changed: a game that cannot
// be taken up whole is none, and reading a file that is not there would never end.
std::optional<SavedGame> FindSavedGame(Program& program) {
  Ordvik& ordvik = program.ordvik;
  Franchise& franchise = program.franchise;
  const auto values = ordvik.ReadSettings({"Team", "Rank", "Week", "Season", "Champion"});
  if (!values) return std::nullopt;
  SavedGame game{(*values)[0], "", (*values)[2], (*values)[3], (*values)[4], {}};
  game.league = LeagueOf(ordvik, game.team, (*values)[1]);
  if (game.league.empty()) return std::nullopt;
  // LoadNewTeams takes the league in which it finds the team last.
  for (const char* rank : kRanks) {
    const std::string path = ordvik.TeamPath(rank, game.team);
    if (Ordvik::FileExists(path) && !ordvik.files().Read(path)) return std::nullopt;
    if (!CanBeListed(ordvik.RankFolder(rank))) return std::nullopt;
  }
  const auto standings = franchise.StatRankLists();
  std::vector<ListBox*> lists(standings.begin(), standings.end());
  lists.push_back(&franchise.Alerts);
  auto saved = SavedLists(ordvik, lists);
  if (!saved) return std::nullopt;
  game.lists = std::move(*saved);
  return game;
}

}  // namespace

bool Startup::HasSavedGame() const {
  Ordvik& ordvik = program_.ordvik;
  const auto values = ordvik.ReadSettings({"Team", "Rank"});
  return values && !program_.under_way.IsBuild() &&
         !LeagueOf(ordvik, (*values)[0], (*values)[1]).empty();
}

void Startup::PressLoad() {
  Ordvik& ordvik = program_.ordvik;
  Franchise& franchise = program_.franchise;
  if (!ordvik.KeepsToItsFolder()) return;
  if (!program_.FinishCutOffWork() || program_.under_way.IsBuild()) return;
  const auto game = FindSavedGame(program_);
  if (!game) return;
  const auto load = [&](ListBox& list) {
    if (std::find(game->lists.begin(), game->lists.end(), &list) == game->lists.end()) return;
    ordvik.LoadSettingsList(list, list.Name() + ".fmk");
  };
  franchise.TeamName.SetCaption(game->team);
  franchise.MyRank.SetCaption(game->league);
  franchise.NextWeek.SetCaption(game->week);
  franchise.Season.SetCaption(game->season);
  franchise.Champion.SetCaption(game->champion);

  franchise.tempList.Clear();
  ordvik.LoadPlayerFile(franchise.tempList, franchise.UserTeamPath());
  // The roster and the alerts are not cleared first: a second load in one run adds to what is
  // there.
  franchise.AddAllToRoster(franchise.tempList);
  franchise.tempList.Clear();

  franchise.LoadNewTeams();
  for (ListBox* standings : franchise.StatRankLists()) {
    standings->Clear();
    load(*standings);
  }
  load(franchise.Alerts);
  Frame1.Hide();
  HighButton4.Hide();
  HighButton5.Hide();

  franchise.tempList.Clear();
  ordvik.LoadPlayerFile(franchise.tempList, franchise.UserTeamPath());
  program_.hockey_naming.RateTeam(franchise.tempList);
  franchise.ShowOwnRatings();
  franchise.GetNextWeek();
  Hide();
  franchise.Show();
}

}  // namespace frostmark
