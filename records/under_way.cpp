#include "records/under_way.h"

#include <string>
#include <string_view>

#include "records/whole_file.h"

namespace frostmark {
namespace {

constexpr std::string_view kMark = "unfinished.new";
constexpr std::string_view kBuild = "build\r\n";
constexpr std::string_view kBeginning = "begin\r\n";  // and the settings before it

std::string Settings(Ordvik& ordvik) {
  return ordvik.files().Read(ordvik.SettingsPath("settings.fmk")).value_or("");
}

}  // namespace

UnderWay::Build::Build(UnderWay& under_way) : under_way_(under_way) {
  if (under_way_.builds_++ == 0) under_way_.whole_ = true;
  under_way_.Mark(kBuild);
}

void UnderWay::Build::Complete(bool whole) {
  under_way_.whole_ = under_way_.whole_ && whole;
  if (under_way_.builds_ > 1 || !under_way_.whole_) return;
  if (under_way_.beginnings_ > 0) {
    under_way_.Mark(kBeginning);
  } else {
    under_way_.Clear();
  }
}

UnderWay::Beginning::Beginning(UnderWay& under_way) : under_way_(under_way) {
  ++under_way_.beginnings_;
  // A franchise does not make its world whole.
  if (!under_way_.IsBuild()) under_way_.Mark(kBeginning);
}

UnderWay::Beginning::~Beginning() {
  --under_way_.beginnings_;
  if (ready_) --under_way_.ready_;
}

void UnderWay::Beginning::Ready() {
  ready_ = true;
  ++under_way_.ready_;
}

void UnderWay::Saved() {
  if (builds_ == 0 && ready_ == beginnings_ && !IsBuild()) Clear();
}

bool UnderWay::IsSet() const { return Ordvik::FileExists(ordvik_.SettingsPath(kMark)); }

bool UnderWay::IsBuild() const {
  if (!IsSet()) return false;
  const auto mark = ordvik_.files().Read(ordvik_.SettingsPath(kMark));
  return !mark || !mark->starts_with(kBeginning);
}

bool UnderWay::IsUnsavedBeginning() const {
  const auto mark = ordvik_.files().Read(ordvik_.SettingsPath(kMark));
  return mark && mark->starts_with(kBeginning) &&
         mark->substr(kBeginning.size()) == Settings(ordvik_);
}

void UnderWay::Mark(std::string_view work) {
  std::string mark(work);
  if (work == kBeginning) mark += Settings(ordvik_);
  (void)ordvik_.files().WriteForGood(ordvik_.SettingsPath(kMark), mark);
}

void UnderWay::Clear() {
  if (!IsSet()) return;
  // What the mark has guarded is on the disk before it goes. Then it has to be gone for good: if it
  // came back with the power, the next "New" would build over a game.
  ordvik_.files().FlushFolders();
  Ordvik::DeleteFile(ordvik_.SettingsPath(kMark));
  (void)FlushFolder(ordvik_.AppPath() + "/Settings");
}

}  // namespace frostmark
