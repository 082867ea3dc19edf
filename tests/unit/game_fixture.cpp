#include "tests/unit/game_fixture.h"

#include <unistd.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <stdexcept>

namespace frostmark::testing {
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

int OverallOf(const ManOfTest& man) {
  if (man.position == "GO") {
    return static_cast<int>(std::nearbyint((man.defense + man.passing) / 2.0));
  }
  const bool back = man.position == "LD" || man.position == "RD";
  const int own_skill = back ? man.defense : man.shooting;
  return static_cast<int>(std::nearbyint((own_skill + man.passing + man.agility) / 3.0));
}

}  // namespace

WorldFolder::WorldFolder() {
  std::string path = (fs::temp_directory_path() / "frostmark-test-XXXXXX").string();
  if (mkdtemp(path.data()) == nullptr) throw std::runtime_error("no temporary folder: " + path);
  path_ = path;
  for (const char* rank : kRanks) fs::create_directories(path_ + "/Teams/" + rank);
  fs::create_directories(path_ + "/Settings");
}

WorldFolder::~WorldFolder() {
  std::error_code ignored;
  fs::remove_all(path_, ignored);
}

std::string WorldFolder::TeamPath(std::string_view rank, std::string_view team) const {
  return path_ + "/Teams/" + std::string(rank) + "/" + std::string(team);
}

std::string WorldFolder::SettingsPath(std::string_view name) const {
  return path_ + "/Settings/" + std::string(name);
}

Lines WorldFolder::FileNames(std::string_view rank) const {
  return NamesIn(path_ + "/Teams/" + std::string(rank));
}

Lines WorldFolder::SettingsNames() const { return NamesIn(path_ + "/Settings"); }

Lines WorldFolder::Everything() const {
  Lines files;
  for (const auto& entry : fs::recursive_directory_iterator(path_)) {
    if (!entry.is_regular_file()) continue;
    const std::string path = entry.path().string();
    files.push_back(path.substr(path_.size() + 1) + ": " + ReadText(path));
  }
  std::sort(files.begin(), files.end());
  return files;
}

void WorldFolder::WriteTeam(std::string_view rank, std::string_view team,
                            const Lines& records) const {
  WriteText(TeamPath(rank, team), JoinLines(records));
}

void WorldFolder::FillWorld() const {
  int skill = 74;
  for (const char* rank : kRanks) {
    for (int number = 0; number < 6; ++number) {
      WriteTeam(rank, WolvesOf(rank, number), MakeRoster(skill + number));
    }
    skill += 3;
  }
}

void GameFixture::TakeOver(const std::string& rank, const std::string& team) {
  franchise().TeamName.SetCaption(team);
  franchise().MyRank.SetCaption(rank);
  franchise().LoadNewTeams();
  franchise().GenSchedule();
  for (const std::string& record : ReadLines(world.TeamPath(rank, team))) {
    franchise().AddToRoster(record);
  }
}

std::string MakeRecord(const ManOfTest& man) {
  std::ostringstream record;
  record << man.name << ',' << man.position << ',' << OverallOf(man) << ',' << man.passing << ','
         << man.shooting << ',' << man.defense << ',' << man.agility << ',' << man.age << ','
         << man.training;
  return record.str();
}

Lines MakeRoster(int skill) {
  constexpr std::array kPositions = {"GO", "RD", "LD", "RF", "CF", "LF",
                                     "RD", "LD", "RF", "CF", "LF"};
  constexpr std::array kNames = {"Adam", "Brad", "Carl", "Dean", "Earl", "Fred",
                                 "Glen", "Hugh", "Ivan", "Jack", "Kent"};
  Lines roster;
  for (std::size_t i = 0; i < kPositions.size(); ++i) {
    roster.push_back(MakeRecord({.name = std::string(kNames[i]) + " Player",
                                 .position = kPositions[i],
                                 .passing = skill,
                                 .shooting = skill,
                                 .defense = skill,
                                 .agility = skill,
                                 .training = i < 6 ? "N" : "Y"}));
  }
  return roster;
}

std::string WolvesOf(std::string_view rank, int number) {
  return std::string(1, rank.back()) + std::to_string(number) + " Wolves";
}

std::string ReadText(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  std::ostringstream content;
  content << file.rdbuf();
  return content.str();
}

void WriteText(const std::string& path, std::string_view content) {
  std::ofstream file(path, std::ios::binary);
  file << content;
  if (!file.flush()) throw std::runtime_error("cannot write " + path);
}

Lines ReadLines(const std::string& path) {
  Lines lines;
  std::istringstream content(ReadText(path));
  for (std::string line; std::getline(content, line);) {
    if (!line.empty() && line.back() == '\r') line.pop_back();
    lines.push_back(line);
  }
  return lines;
}

std::string JoinLines(const Lines& lines) {
  std::string content;
  for (const std::string& line : lines) content += line + "\r\n";
  return content;
}

Lines ItemsOf(const RecordList& list) {
  Lines items;
  for (int i = 0; i < list.ListCount(); ++i) items.push_back(list.List(i));
  return items;
}

void FillList(RecordList& list, const Lines& items) {
  list.Clear();
  for (const std::string& item : items) list.AddItem(item);
}

}  // namespace frostmark::testing
