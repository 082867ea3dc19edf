#include "tests/support/temporary_world.h"

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <stdexcept>

#include "records/leagues.h"
#include "tests/support/test_player.h"

namespace frostmark::test {
namespace {

namespace fs = std::filesystem;

Lines NamesIn(const std::string& folder) {
  Lines names;
  for (const auto& entry : fs::directory_iterator(folder)) {
    names.push_back(entry.path().filename().string());
  }
  std::sort(names.begin(), names.end());
  return names;
}

}  // namespace

TemporaryWorld::TemporaryWorld() {
  std::string path = (fs::temp_directory_path() / "frostmark-test-XXXXXX").string();
  if (mkdtemp(path.data()) == nullptr) throw std::runtime_error("no temporary folder: " + path);
  path_ = path;
  for (const char* rank : kRanks) fs::create_directories(path_ + "/Teams/" + rank);
  fs::create_directories(path_ + "/Settings");
}

TemporaryWorld::~TemporaryWorld() {
  std::error_code ignored;
  fs::remove_all(path_, ignored);
}

std::string TemporaryWorld::TeamPath(std::string_view rank, std::string_view team) const {
  return path_ + "/Teams/" + std::string(rank) + "/" + std::string(team);
}

std::string TemporaryWorld::SettingsPath(std::string_view name) const {
  return path_ + "/Settings/" + std::string(name);
}

Lines TemporaryWorld::FileNames(std::string_view rank) const {
  return NamesIn(path_ + "/Teams/" + std::string(rank));
}

Lines TemporaryWorld::SettingsNames() const { return NamesIn(path_ + "/Settings"); }

Lines TemporaryWorld::Everything() const {
  Lines files;
  for (const auto& entry : fs::recursive_directory_iterator(path_)) {
    if (!entry.is_regular_file()) continue;
    const std::string path = entry.path().string();
    files.push_back(path.substr(path_.size() + 1) + ": " + ReadText(path));
  }
  std::sort(files.begin(), files.end());
  return files;
}

void TemporaryWorld::WriteTeam(std::string_view rank, std::string_view team,
                               const Lines& records) const {
  WriteText(TeamPath(rank, team), JoinLines(records));
}

void TemporaryWorld::FillWorld() const {
  int skill = 74;
  for (const char* rank : kRanks) {
    for (int number = 0; number < 6; ++number) {
      WriteTeam(rank, WolvesOf(rank, number), MakeRoster(skill + number));
    }
    skill += 3;
  }
}

std::string WolvesOf(std::string_view rank, int number) {
  return std::string(1, rank.back()) + std::to_string(number) + " Wolves";
}

}  // namespace frostmark::test
