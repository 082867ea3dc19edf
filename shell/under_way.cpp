#include "shell/under_way.h"

#include "development/league_moves.h"
#include "records/whole_file.h"

namespace frostmark {
namespace {

constexpr std::string_view kMark = "unfinished.new";
constexpr std::string_view kBuild = "build\r\n";
constexpr std::string_view kBeginning = "begin\r\n";

}  // namespace

void UnderWay::MarkBuild() {
  (void)ordvik_.files().WriteForGood(ordvik_.SettingsPath(kMark), kBuild);
}

void UnderWay::MarkBeginning() {
  if (IsBuild()) return;  // a franchise does not make its world whole
  (void)ordvik_.files().WriteForGood(ordvik_.SettingsPath(kMark), kBeginning);
}

void UnderWay::Clear() {
  if (!IsSet()) return;
  // What the mark has guarded is on the disk before it goes. Then it has to be gone for good: if it
  // came back with the power, the next "New" would build over a game.
  ordvik_.files().FlushFolders();
  Ordvik::DeleteFile(ordvik_.SettingsPath(kMark));
  (void)FlushFolder(ordvik_.AppPath() + "/Settings");
}

bool UnderWay::IsSet() const { return Ordvik::FileExists(ordvik_.SettingsPath(kMark)); }

bool UnderWay::IsBuild() const {
  return IsSet() && ordvik_.files().Read(ordvik_.SettingsPath(kMark)) != kBeginning;
}

bool FinishCutOffWork(Ordvik& ordvik) {
  const bool moved = FinishLeagueMoves(ordvik);
  return ordvik.files().FinishSaves() && moved;
}

}  // namespace frostmark
