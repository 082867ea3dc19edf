#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdio>

#include "records/file_store.h"
#include "records/whole_file.h"

// A save of several files. They are written beside their places and flushed; then a list of them
// appears by one rename, and from that moment on the save is carried out, by this program or, when
// this one is cut off, by the next.
namespace frostmark {
namespace {

constexpr std::string_view kHeading = "frostmark save";
constexpr std::string_view kEnd = "end";

std::string NameOf(const std::string& path) { return path.substr(path.rfind('/') + 1); }

// Lists may be foreign: only lists of the game are ever put into place.
bool MayBeSaved(std::string_view name) {
  return name.ends_with(".fmk") && name.find('/') == std::string_view::npos;
}

}  // namespace

FileStore::Save::Save(FileStore& store) : store_(store) { store_.saves_.push_back(this); }

FileStore::Save::~Save() { std::erase(store_.saves_, this); }

FileStore::Save::Files::iterator FileStore::Save::Find(const std::string& path) {
  return std::find_if(files_.begin(), files_.end(),
                      [&](const auto& file) { return file.first == path; });
}

void FileStore::Save::Forget(const std::string& path) {
  const auto held = Find(path);
  if (held != files_.end()) files_.erase(held);
}

void FileStore::Save::Hold(const std::string& path, std::string content) {
  Forget(path);
  files_.emplace_back(path, std::move(content));
}

bool FileStore::Save::Commit() {
  Files files;
  files.swap(files_);
  for (const auto& [path, content] : files) store_.Supersede(path);
  store_.TidyUp();
  return store_.PutTogether(files);
}

// Without room nothing is saved, and the save before stays whole.
bool FileStore::PutTogether(const Save::Files& files) {
  FlushFolders();  // the teams that the tables tell of
  Moves moves;
  const int error = Stage(files, moves);
  if (error == 0 && MakeValid(moves)) {
    tidy_ = CarryOut(unfinished_.SaveList());
    return tidy_;
  }
  for (const auto& [temporary, path] : moves) (void)unlink(temporary.c_str());
  if (!OnlyOverwritingMayHelp(error)) return false;
  bool all = true;
  for (const auto& [path, content] : files) all = Replace(path, content) == 0 && all;
  FlushFolders();
  return all;
}

int FileStore::Stage(const Save::Files& files, Moves& moves) {
  // The file held back first tells that there is a game, so it comes last.
  for (auto file = files.rbegin(); file != files.rend(); ++file) {
    std::string temporary;
    if (const int error = WriteTemporary(file->second, file->first, temporary)) return error;
    moves.emplace_back(temporary, file->first);
  }
  return 0;
}

bool FileStore::MakeValid(const Moves& moves) {
  std::string list(kHeading);
  list += '\n';
  for (const auto& [temporary, path] : moves) {
    list += NameOf(temporary) + '\n' + NameOf(path) + '\n';
  }
  list += kEnd;
  list += '\n';
  const std::string path = unfinished_.SaveList();
  std::string temporary;
  if (WriteTemporary(list, path, temporary) != 0) return false;
  if (std::rename(temporary.c_str(), path.c_str()) != 0) {
    (void)unlink(temporary.c_str());
    return false;
  }
  // From here on the save is under way whatever fails.
  (void)FlushFolder(unfinished_.folder());
  return true;
}

bool FileStore::FinishSaves() {
  const auto lists = unfinished_.AllSaveLists();
  if (!lists) return false;
  bool all = true;
  for (const std::string& list : *lists) all = CarryOut(list) && all;
  if (all) unfinished_.RemoveLeftovers();
  return all;
}

bool FileStore::CarryOut(const std::string& list) {
  const auto content = ReadWholeFile(list);
  if (!content) return NothingLiesAt(list);  // another program may have carried it out
  const std::vector<std::string> lines = WholeLines(*content);
  bool all = true;
  if (lines.size() >= 2 && lines.front() == kHeading && lines.back() == kEnd) {
    for (std::size_t i = 1; i + 2 < lines.size(); i += 2) {
      if (!UnfinishedFiles::IsTemporary(lines[i]) || !MayBeSaved(lines[i + 1])) continue;
      const std::string folder = unfinished_.folder() + "/";
      all = PutIntoPlace(folder + lines[i], folder + lines[i + 1]) && all;
    }
  }
  if (!all) return false;
  (void)FlushFolder(unfinished_.folder());
  return unlink(list.c_str()) == 0 || errno == ENOENT;
}

// True when nothing is left to do, or ever could be.
bool FileStore::PutIntoPlace(const std::string& temporary, const std::string& path) {
  if (std::rename(temporary.c_str(), path.c_str()) == 0 || errno == ENOENT) return true;
  if (OnlyOverwritingMayHelp(errno)) {
    const auto content = ReadWholeFile(temporary);
    if (!content || OverwriteFile(path, *content) != 0) return false;
  } else if (errno != EISDIR && errno != ENOTDIR) {
    return false;
  }
  return unlink(temporary.c_str()) == 0 || errno == ENOENT;
}

}  // namespace frostmark
