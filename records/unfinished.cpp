#include "records/unfinished.h"

#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <charconv>
#include <csignal>
#include <filesystem>
#include <system_error>

namespace frostmark {
namespace {

namespace fs = std::filesystem;

constexpr std::string_view kStart = "unfinished.";
constexpr std::string_view kTemporary = ".tmp";
constexpr std::string_view kSaveList = ".save";

bool IsNumber(std::string_view text) {
  return !text.empty() && text.find_first_not_of("0123456789") == std::string_view::npos;
}

// What stands between "unfinished." and END in NAME.
std::optional<std::string_view> Between(std::string_view name, std::string_view end) {
  if (name.size() < kStart.size() + end.size() || !name.starts_with(kStart) ||
      !name.ends_with(end)) {
    return std::nullopt;
  }
  return name.substr(kStart.size(), name.size() - kStart.size() - end.size());
}

// The process that a temporary file belongs to.
std::string_view ProcessOf(std::string_view temporary) {
  const std::string_view rest = temporary.substr(kStart.size());
  return rest.substr(0, rest.find('.'));
}

bool Runs(std::string_view process) {
  pid_t number = 0;
  const auto [end, error] =
      std::from_chars(process.data(), process.data() + process.size(), number);
  if (error != std::errc() || end != process.data() + process.size() || number <= 0) return false;
  return number != getpid() && (kill(number, 0) == 0 || errno != ESRCH);
}

}  // namespace

std::vector<std::string> WholeLines(std::string_view text) {
  std::vector<std::string> lines;
  for (std::size_t end = text.find('\n'); end != std::string_view::npos; end = text.find('\n')) {
    lines.emplace_back(text.substr(0, end));
    text.remove_prefix(end + 1);
  }
  return lines;
}

UnfinishedFiles::UnfinishedFiles(std::string folder) : folder_(std::move(folder)) {}

std::string UnfinishedFiles::NextTemporary() {
  return folder_ + "/" + std::string(kStart) + std::to_string(getpid()) + "." +
         std::to_string(next_++) + std::string(kTemporary);
}

std::string UnfinishedFiles::SaveList() const {
  return folder_ + "/" + std::string(kStart) + std::to_string(getpid()) + std::string(kSaveList);
}

bool UnfinishedFiles::IsTemporary(std::string_view name) {
  const auto numbers = Between(name, kTemporary);
  if (!numbers) return false;
  const std::size_t point = numbers->find('.');
  return point != std::string_view::npos && IsNumber(numbers->substr(0, point)) &&
         IsNumber(numbers->substr(point + 1));
}

bool UnfinishedFiles::IsSaveList(std::string_view name) {
  const auto process = Between(name, kSaveList);
  return process && IsNumber(*process);
}

std::optional<std::vector<std::string>> UnfinishedFiles::Names() const {
  std::vector<std::string> names;
  std::error_code error;
  fs::directory_iterator entry(folder_, error);
  for (; !error && entry != fs::directory_iterator(); entry.increment(error)) {
    std::string name = entry->path().filename().string();
    if (name.starts_with(kStart)) names.push_back(std::move(name));
  }
  if (error == std::errc::no_such_file_or_directory) return names;
  if (error) return std::nullopt;
  return names;
}

std::optional<std::vector<std::string>> UnfinishedFiles::AllSaveLists() const {
  const auto names = Names();
  if (!names) return std::nullopt;
  std::vector<std::string> lists;
  for (const std::string& name : *names) {
    struct stat status {};
    std::string path = folder_ + "/" + name;
    if (!IsSaveList(name) || lstat(path.c_str(), &status) != 0) continue;
    if (S_ISREG(status.st_mode)) lists.push_back(std::move(path));
  }
  return lists;
}

void UnfinishedFiles::RemoveLeftovers() const {
  const auto names = Names();
  if (!names) return;
  for (const std::string& name : *names) {
    // Earlier versions had one name for all.
    const bool leftover = name == "unfinished.tmp" || (IsTemporary(name) && !Runs(ProcessOf(name)));
    const std::string path = folder_ + "/" + name;
    struct stat status {};
    if (!leftover || lstat(path.c_str(), &status) != 0) continue;
    if (S_ISREG(status.st_mode) || S_ISLNK(status.st_mode)) (void)unlink(path.c_str());
  }
}

}  // namespace frostmark
