#include "console/options.h"

#include <CLI/CLI.hpp>
#include <array>
#include <filesystem>
#include <iostream>
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
    "usage: frostmark-console [--app-path DIR] [--fresh] [--clock real|virtual] [SCRIPT]\n"
    "       frostmark-console --help | --version\n";

std::optional<Options> ReadOptions(int count, char** arguments, int& exit_code) {
  Options options;
  std::string clock;
  CLI::App app("Frostmark as text: a hockey franchise in a terminal or played by a script.",
               "frostmark-console");
  app.set_version_flag("--version", "frostmark-console " FROSTMARK_VERSION, "Print the version");
  app.set_help_flag("-h,--help", "Print this help");
  app.option_defaults()->multi_option_policy(CLI::MultiOptionPolicy::TakeLast);
  const auto not_empty = [](const std::string& text) {
    return text.empty() ? std::string("is empty") : std::string();
  };
  app.add_option("--app-path", options.app_path, "The folder of the world")
      ->option_text("DIR")
      ->check(not_empty);
  app.add_flag("--fresh", options.fresh, "First lay out the empty folders of a new world")
      ->disable_flag_override();
  app.add_option("--clock", clock, "real: waits as a person does; virtual: only on command")
      ->option_text("real|virtual")
      ->check(CLI::IsMember({"real", "virtual"}));
  app.add_option("SCRIPT", options.script, "A file of commands (standard input)")
      ->option_text(" ")
      ->multi_option_policy(CLI::MultiOptionPolicy::Throw)
      ->check(not_empty);
  try {
    app.parse(count, arguments);
  } catch (const CLI::Success& wish) {
    exit_code = app.exit(wish);
    return std::nullopt;
  } catch (const CLI::ParseError& error) {
    std::cerr << "frostmark-console: " << error.what() << '\n' << kUsage;
    exit_code = kWrongUsage;
    return std::nullopt;
  }
  if (!clock.empty())
    options.clock = clock == "real" ? ConsoleClock::kReal : ConsoleClock::kVirtual;
  options.app_path = options.app_path.empty() ? FolderOfProgram().string()
                                              : WithoutSeparatorAtEnd(options.app_path);
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
