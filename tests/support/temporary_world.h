#pragma once

#include <string>
#include <string_view>

#include "tests/support/texts.h"

namespace frostmark::test {

// A program's folder in the temporary folder of the system, with its empty "Teams/Rank F" to
// "Teams/Rank A" and "Settings". It is removed at the end with everything in it.
class TemporaryWorld {
 public:
  // Throws std::runtime_error when there is no place for it.
  TemporaryWorld();
  TemporaryWorld(const TemporaryWorld&) = delete;
  TemporaryWorld& operator=(const TemporaryWorld&) = delete;
  ~TemporaryWorld();

  // The program's folder, without a separator at its end.
  const std::string& path() const { return path_; }
  // The file TEAM in the league RANK ("Rank F"), and the file NAME in Settings.
  std::string TeamPath(std::string_view rank, std::string_view team) const;
  std::string SettingsPath(std::string_view name) const;

  // The names of all that lies in the folder of RANK, or in Settings, in plain order.
  Lines FileNames(std::string_view rank) const;
  Lines SettingsNames() const;
  // All files with their contents, "path below the program's folder: content", in plain order.
  Lines Everything() const;

  // Writes RECORDS as the team file TEAM of RANK.
  void WriteTeam(std::string_view rank, std::string_view team, const Lines& records) const;
  // Writes six teams of eleven into each league: "F0 Wolves" to "F5 Wolves" in "Rank F" and so on,
  // the better the higher the league.
  void FillWorld() const;

 private:
  std::string path_;
};

// "F0 Wolves" for the league "Rank F" and 0.
std::string WolvesOf(std::string_view rank, int number);

}  // namespace frostmark::test
