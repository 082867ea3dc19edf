#include <array>
#include <filesystem>
#include <limits>
#include <system_error>

#include "program/program.h"
#include "records/leagues.h"

namespace frostmark {
namespace {

constexpr int kTeamsOfNewWorld = kRankCount * kTeamsInLeague - 1;  // without the user's

constexpr std::array<const char*, kTeamsOfNewWorld> kCities = {
    "Binghamton", "Baltimore",  "Boston",       "Chicago",      "Cleveland",    "Denver",
    "Edmonton",   "Houston",    "Indianapolis", "Jacksonville", "Juneau",       "Manitoba",
    "Minneasota", "New Jersey", "New York",     "Ottawa",       "Philadelphia", "Phoenix",
    "Pittsburgh", "Quebec",     "Rhode Island", "Richmond",     "Sakatoon",     "San Diego",
    "Seattle",    "Syracuse",   "Toronto",      "Utah",         "Utica",        "Vancouver",
    "Victoria",   "Virginia",   "Winnipeg",     "Worcester",    "Los Angeles"};

constexpr std::array<const char*, kTeamsOfNewWorld> kNicknames = {
    "Whalers", "Clippers",  "Braves",   "Cougars",       "Crusaders", "Blizzard",    "Roadrunners",
    "Aeros",   "Capitals",  "Barons",   "Eskimos",       "Moose",     "North Stars", "Knights",
    "Raiders", "Nationals", "Quakers",  "Heat",          "Hornets",   "Citadelles",  "Reds",
    "Robins",  "Sheiks",    "Mariners", "Metropolitans", "Firebirds", "Toros",       "Grizzlies",
    "Devils",  "Maroons",   "Senators", "Wings",         "Jets",      "Ice Cats",    "Freeze"};

// The strength of a new league's teams. The bands are uneven on purpose: 84 belongs to no league,
// 80, 82, 86 and 88 to two.
struct Band {
  const char* rank;
  int teams;
  int weakest;
  int strongest;
};

constexpr int kAnyWeakness = std::numeric_limits<int>::min();
constexpr int kAnyStrength = std::numeric_limits<int>::max();

constexpr std::array<Band, kRankCount> kBands = {{
    {"Rank F", kTeamsInLeague - 1, kAnyWeakness, 80},  // the user's team will be the sixth
    {"Rank E", kTeamsInLeague, 80, 82},
    {"Rank D", kTeamsInLeague, 82, 83},
    {"Rank C", kTeamsInLeague, 85, 86},
    {"Rank B", kTeamsInLeague, 86, 88},
    {"Rank A", kTeamsInLeague, 88, kAnyStrength},
}};

// False also where that cannot be seen: a listing that fails looks like one of an empty folder.
bool HoldsNoFile(const std::string& folder) {
  std::error_code error;
  std::filesystem::directory_iterator entry(folder, error);
  for (; !error && entry != std::filesystem::directory_iterator(); entry.increment(error)) {
    if (std::error_code ignored; entry->is_regular_file(ignored)) return false;
  }
  return !error;
}

// Takes one item out of LIST by chance.
std::string Draw(Ordvik& ordvik, RecordList& list) {
  const int index = ordvik.RollUpTo(list.ListCount()) - 1;
  std::string item = list.List(index);
  list.RemoveItem(index);
  return item;
}

// Rolls teams until one lies in BAND, and gives it a name. False when the team has no file.
bool BuildTeam(Program& program, const Band& band) {
  TeamCreator& creator = program.team_creator;
  Ordvik& ordvik = program.ordvik;
  double overall = 0;
  do {
    creator.GenTeam();
    program.front_end.Yield();
    overall = LenientNumber(creator.Label7.Caption());
  } while (overall < band.weakest || overall > band.strongest);
  const std::string city = Draw(ordvik, program.startup.List3);
  const std::string team = city + " " + Draw(ordvik, program.startup.List4);
  const std::string path = ordvik.TeamPath(band.rank, team);
  ordvik.SaveListFile(creator.List1, path);
  program.front_end.Yield();
  return Ordvik::FileExists(path);
}

}  // namespace

void Startup::BuildLeague() {
  program_.front_end.ShowBox(
      {BoxIcon::kInformation, BoxButtons::kOk, "Please wait as this may take some time..."});
  for (const char* city : kCities) List3.AddItem(city);
  for (const char* nickname : kNicknames) List4.AddItem(nickname);
  UnderWay::Build build(program_.under_way);
  program_.ForgetCutOffMoves();
  bool whole = true;
  for (const char* rank : kRanks) {
    File1.SetPath(program_.ordvik.RankFolder(rank));
    const int count = File1.ListCount();
    for (int i = 0; i < count; ++i) {
      Ordvik::DeleteFile(program_.ordvik.TeamPath(rank, File1.List(i)));
      program_.front_end.Yield();
    }
    if (!HoldsNoFile(program_.ordvik.RankFolder(rank))) whole = false;
  }
  for (const Band& band : kBands) {
    for (int team = 0; team < band.teams; ++team) {
      if (!BuildTeam(program_, band)) whole = false;
    }
  }
  // A world that lacks a team, or has kept one of the world before, cannot be played.
  build.Complete(whole);
  program_.franchise.Season.SetCaption("0");
  program_.franchise.Champion.SetCaption("0");
}

}  // namespace frostmark
