#pragma once

#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "records/unfinished.h"

namespace frostmark {

// How a world's files reach the disk. Whatever happens to the program or the machine, a file is the
// old one or the new one: new content is flushed before it takes its name.
class FileStore {
 public:
  // SETTINGS is the folder for files on their way; it may be missing.
  explicit FileStore(const std::string& settings) : unfinished_(settings) {}

  // The content of PATH as this program has written it last: also that of a save under way.
  std::optional<std::string> Read(const std::string& path) const;

  // Makes CONTENT the file at PATH. Where no new file is allowed PATH is written over in place.
  // What cannot be written stays as it was. False when it did.
  bool Write(const std::string& path, std::string_view content);

  // Like Write, but never in place, and on the disk for good when this returns true.
  bool WriteForGood(const std::string& path, std::string_view content);

  // Flushes the entries of all folders in which Write has given names since the last time.
  void FlushFolders();

  // Carries out the saves that were complete when their program ended, and removes what others have
  // left. False when something could not be read or put into its place; it is then kept for the
  // next try.
  bool FinishSaves();

  // Files that reach the disk together or not at all. Several may be open at once, the handlers of
  // one running within another; they end in the opposite order. A write by somebody else to a file
  // that is held back here takes its place. Without Commit nothing is written.
  class Save {
   public:
    explicit Save(FileStore& store);
    Save(const Save&) = delete;
    Save& operator=(const Save&) = delete;
    ~Save();

    // Holds back CONTENT for the file PATH in Settings. Read finds it from now on.
    void Hold(const std::string& path, std::string content);
    // Puts all files into their places, the one held back first as the last of all. False when they
    // are not there; then none is, or the rest follows with FinishSaves.
    bool Commit();

   private:
    friend class FileStore;
    using Files = std::vector<std::pair<std::string, std::string>>;  // path and content

    Files::iterator Find(const std::string& path);
    void Forget(const std::string& path);

    FileStore& store_;
    Files files_;
  };

 private:
  // The paths of temporary files and of the places where they belong.
  using Moves = std::vector<std::pair<std::string, std::string>>;

  void Supersede(const std::string& path);
  void TidyUp();
  int WriteTemporary(std::string_view content, const std::string& like, std::string& temporary);
  int Replace(const std::string& path, std::string_view content);
  int Stage(const Save::Files& files, Moves& moves);
  bool MakeValid(const Moves& moves);
  bool PutTogether(const Save::Files& files);
  bool CarryOut(const std::string& list);
  static bool PutIntoPlace(const std::string& temporary, const std::string& path);

  UnfinishedFiles unfinished_;
  std::vector<Save*> saves_;         // under way, the outermost first
  std::set<std::string> new_names_;  // folders whose entries are not flushed
  bool tidy_ = false;
};

}  // namespace frostmark
