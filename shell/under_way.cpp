#include "shell/under_way.h"

#include "development/league_moves.h"

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
  (void)ordvik_.files().WriteForGood(ordvik_.SettingsPath(kMark), kBeginning);
}

void UnderWay::Clear() {
  // What the mark has guarded is on the disk before it goes.
  ordvik_.files().FlushFolders();
  Ordvik::DeleteFile(ordvik_.SettingsPath(kMark));
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
