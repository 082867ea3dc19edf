#include "console/options.h"

#include <array>
#include <filesystem>
#include <string_view>
#include <system_error>

namespace frostmark {
namespace {

namespace fs = std::filesystem;

fs::path FolderOfProgram() {
  std::error_code ignored;
  return fs::read_symlink("/proc/self/exe", ignored).parent_path();
}

std::string WithoutSeparatorAtEnd(std::string path) {
  while (path.size() > 1 && path.back() == '/') path.pop_back();
  return path;
}

bool HoldsFiles(const fs::path& folder) {
  std::error_code error;
  fs::recursive_directory_iterator entry(folder, error);
  for (const fs::recursive_directory_iterator end; !error && entry != end; entry.increment(error)) {
    std::error_code ignored;
    if (!entry->is_directory(ignored)) return true;
  }
  return false;
}

}  // namespace

const char* const kUsage =
    "usage: frostmark-console [--app-path DIR] [--fresh] [--clock real|virtual] [SCRIPT]\n";

std::optional<Options> ReadOptions(int count, char** arguments) {
  Options options;
  options.app_path = FolderOfProgram().string();
  for (int i = 1; i < count; ++i) {
    const std::string_view word = arguments[i];
    const bool more = i + 1 < count;
    if (word == "--fresh") {
      options.fresh = true;
    } else if (word == "--app-path" && more && arguments[i + 1][0] != '\0') {
      options.app_path = WithoutSeparatorAtEnd(arguments[++i]);
    } else if (word == "--clock" && more && std::string_view(arguments[i + 1]) == "real") {
      options.clock = ConsoleClock::kReal;
      ++i;
    } else if (word == "--clock" && more && std::string_view(arguments[i + 1]) == "virtual") {
      options.clock = ConsoleClock::kVirtual;
      ++i;
    } else if (!word.empty() && !word.starts_with("-") && options.script.empty()) {
      options.script = word;
    } else {
      return std::nullopt;
    }
  }
  return options;
}

bool LayOutFolders(const std::string& app_path) {
  const fs::path folder(app_path);
  if (HoldsFiles(folder / "Teams") || HoldsFiles(folder / "Settings")) return false;
  std::error_code error;
  const std::array<const char*, 7> names = {"Teams/Rank F", "Teams/Rank E", "Teams/Rank D",
                                            "Teams/Rank C", "Teams/Rank B", "Teams/Rank A",
                                            "Settings"};
  for (const char* name : names) {
    fs::create_directories(folder / name, error);
    if (error) return false;
  }
  return true;
}

}  // namespace frostmark
