#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace frostmark {

// The lines of TEXT, each ended by a line feed. One without its end is incomplete and left out.
std::vector<std::string> WholeLines(std::string_view text);

// The names of files that live only while something is being written. They lie in Settings and
// never in a league's folder, where every file is a team. Each process has names of its own, so
// that two programs in one world do not write into each other's.
//
//   unfinished.1234.0.tmp   content on its way to its place
//   unfinished.1234.save    the list of a save's files that wait for their places
class UnfinishedFiles {
 public:
  explicit UnfinishedFiles(std::string folder);

  const std::string& folder() const { return folder_; }
  // A path that this object has not given before. Something may lie there all the same.
  std::string NextTemporary();
  // The path of this process's list.
  std::string SaveList() const;

  static bool IsTemporary(std::string_view name);
  static bool IsSaveList(std::string_view name);

  // The paths of all lists of saves; nothing when the folder cannot be read to its end.
  std::optional<std::vector<std::string>> AllSaveLists() const;
  // Removes temporary files whose process has ended, of this process too. Links are removed
  // themselves; pipes, folders and the like stay.
  void RemoveLeftovers() const;

 private:
  std::optional<std::vector<std::string>> Names() const;

  std::string folder_;  // without a separator at its end
  unsigned next_ = 0;
};

}  // namespace frostmark
