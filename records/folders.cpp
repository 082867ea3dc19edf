#include <filesystem>
#include <system_error>

#include "records/ordvik.h"
#include "records/runtime_error.h"

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

void Ordvik::MoveFile(const std::string& source, const std::string& destination) {
  if (!FileExists(source)) throw RuntimeError("File not found: " + source);
  std::error_code error;
  fs::rename(source, destination, error);
  if (!error) return;
  // Another file system, or no right to rename: a copy first, so that the team is never in none.
  fs::copy_file(source, destination, fs::copy_options::overwrite_existing, error);
  if (error) throw RuntimeError("File cannot be moved: " + source + " (" + error.message() + ")");
  fs::remove(source, error);
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
