#pragma once

#include <optional>
#include <string>

namespace frostmark {

enum class ConsoleClock { kReal, kVirtual };

// What the command line asks for.
struct Options {
  std::string app_path;
  bool fresh = false;
  std::optional<ConsoleClock> clock;
  std::string script;  // empty: standard input
};

extern const char* const kUsage;

// Nothing when ARGUMENTS are not understood.
std::optional<Options> ReadOptions(int count, char** arguments);

// Lays out the empty folders of a new installation in APP_PATH. False when it already holds a team
// file or a settings file, or when the folders cannot be made.
bool LayOutFolders(const std::string& app_path);

}  // namespace frostmark
