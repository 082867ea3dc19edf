#include <algorithm>
#include <filesystem>
#include <system_error>

#include "records/leagues.h"
#include "records/ordvik.h"
#include "records/whole_file.h"

namespace frostmark {

namespace fs = std::filesystem;

bool Ordvik::FileExists(const std::string& path) {
  std::error_code error;
  return fs::is_regular_file(path, error);
}

void Ordvik::DeleteFile(const std::string& path) {
  std::error_code error;
  if (FileExists(path)) fs::remove(path, error);
}

bool Ordvik::MoveFile(const std::string& source, const std::string& destination) {
  return FileExists(source) && MoveWholeFile(source, destination) == 0;
}

bool Ordvik::IsFileName(std::string_view name) {
  constexpr std::string_view kNoPartOfName("/\0", 2);
  return !name.empty() && name != "." && name != ".." &&
         name.find_first_of(kNoPartOfName) == std::string_view::npos;
}

bool Ordvik::KeepsToItsFolder() const {
  const auto true_path = [](const std::string& folder) {
    std::error_code error;
    const std::string path = fs::canonical(folder, error);
    return error ? std::string() : path;
  };
  const std::string home = true_path(app_path_.empty() ? "/" : app_path_);
  const auto leads_out = [&](const std::string& folder) {
    const std::string path = true_path(folder);
    return !path.empty() && !path.starts_with(home == "/" ? home : home + "/");
  };
  return !leads_out(SettingsPath("")) &&
         std::none_of(kRanks.begin(), kRanks.end(),
                      [&](const char* rank) { return leads_out(RankFolder(rank)); });
}

std::string Ordvik::RankFolder(std::string_view rank) const {
  std::string folder = app_path_;
  folder += "/Teams/";
  folder += rank;
  return folder;
}

std::string Ordvik::TeamPath(std::string_view rank, std::string_view team) const {
  std::string path = RankFolder(rank);
  path += '/';
  path += team;
  return path;
}

std::string Ordvik::SettingsPath(std::string_view name) const {
  std::string path = app_path_;
  path += "/Settings/";
  path += name;
  return path;
}

}  // namespace frostmark
