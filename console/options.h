#pragma once

#include <optional>
#include <string>

namespace frostmark {

constexpr int kWrongUsage = 2;

enum class ConsoleClock { kReal, kVirtual };

// What the command line asks for.
struct Options {
  std::string app_path;
  bool fresh = false;
  std::optional<ConsoleClock> clock;
  std::string script;  // empty: standard input
};

extern const char* const kUsage;

// The command line of ARGUMENTS. Nothing when the program has no more to do than to end with
// EXIT_CODE: help or the version is printed then (0), or what is wrong with the words (2).
std::optional<Options> ReadOptions(int count, char** arguments, int& exit_code);

// Lays out the empty folders of a new installation in APP_PATH. False when it already holds a team
// file or a settings file, or when the folders cannot be made.
bool LayOutFolders(const std::string& app_path);

}  // namespace frostmark
