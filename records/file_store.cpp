#include "records/file_store.h"

#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdio>

#include "records/whole_file.h"

namespace frostmark {
namespace {

std::string FolderOf(const std::string& path) { return path.substr(0, path.rfind('/')); }

void Remove(const std::string& path) { (void)unlink(path.c_str()); }

}  // namespace

std::optional<std::string> FileStore::Read(const std::string& path) const {
  for (auto save = saves_.rbegin(); save != saves_.rend(); ++save) {
    const auto held = (*save)->Find(path);
    if (held != (*save)->files_.end()) return held->second;
  }
  return ReadWholeFile(path);
}

bool FileStore::Write(const std::string& path, std::string_view content) {
  Supersede(path);
  TidyUp();
  return Replace(path, content) == 0;
}

bool FileStore::WriteForGood(const std::string& path, std::string_view content) {
  TidyUp();
  std::string temporary;
  if (WriteTemporary(content, path, temporary) != 0) return false;
  if (std::rename(temporary.c_str(), path.c_str()) != 0) {
    Remove(temporary);
    return false;
  }
  return FlushFolder(FolderOf(path)) == 0;
}

void FileStore::FlushFolders() {
  for (const std::string& folder : new_names_) (void)FlushFolder(folder);
  new_names_.clear();
}

void FileStore::Supersede(const std::string& path) {
  for (Save* save : saves_) save->Forget(path);
}

// Before the first write, so that an older save cannot come over a newer one.
void FileStore::TidyUp() {
  if (!tidy_) tidy_ = FinishSaves();
}

int FileStore::WriteTemporary(std::string_view content, const std::string& like,
                              std::string& temporary) {
  constexpr int kTries = 100;  // names taken by what is not ours to remove
  int error = EEXIST;
  for (int i = 0; i < kTries && error == EEXIST; ++i) {
    temporary = unfinished_.NextTemporary();
    error = WriteNewFile(temporary, content, like);
  }
  return error;
}

int FileStore::Replace(const std::string& path, std::string_view content) {
  std::string temporary;
  int error = WriteTemporary(content, path, temporary);
  if (error == 0) {
    if (std::rename(temporary.c_str(), path.c_str()) == 0) {
      new_names_.insert(FolderOf(path));
      return 0;
    }
    error = errno;
    Remove(temporary);
  }
  return OnlyOverwritingMayHelp(error) ? OverwriteFile(path, content) : error;
}

}  // namespace frostmark
