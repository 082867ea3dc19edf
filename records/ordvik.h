#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "records/dice.h"
#include "records/file_store.h"
#include "records/record_list.h"
#include "records/ui_queue.h"

namespace frostmark {

class Screen;

// The utility module: chance, text search, waiting, and all reading and writing of files. No file
// operation reports a failure: what cannot be written is passed over in silence.
class Ordvik {
 public:
  // APP_PATH is the program's folder, without a separator at its end. It holds "Teams" and
  // "Settings"; neither is ever created here.
  Ordvik(UiQueue& queue, Dice& dice, std::string app_path);

  // general.cpp
  // A whole number from 1 to N. The generator is seeded from the clock at every call.
  int RollUpTo(int n);
  // Whether SOUGHT occurs in TEXT at or after the 1-based position START; case counts. The empty
  // text occurs in every text.
  static bool ContainsText(int start, std::string_view text, std::string_view sought);

  // list_files.cpp
  // Writes LIST to PATH, a line an item, each ended by CR LF. Yields after each line. The file at
  // PATH is the old one or the new one at every moment.
  void SaveListFile(const RecordList& list, const std::string& path);
  // The same, held back by SAVE until that is committed.
  void SaveListFile(const RecordList& list, const std::string& path, FileStore::Save& save);
  // Appends a record to LIST for each nine items of the file at PATH; an incomplete last record is
  // lost. Yields after each item. When there is no such file it never returns: it appends records
  // of eight commas, one every nine waits, and the user stays free to act meanwhile.
  void LoadPlayerFile(RecordList& list, const std::string& path);
  // Appends each item of the file NAME in Settings to LIST, yielding after each. When there is no
  // such file it never returns, like LoadPlayerFile.
  void LoadSettingsList(RecordList& list, const std::string& name);

  // settings_file.cpp
  // The value of KEY in the section [Frostmark], at most 254 characters; "" if there is none.
  std::string ReadSetting(std::string_view key);
  // Stores VALUE under KEY, keeping all other keys and sections.
  void WriteSetting(std::string_view key, std::string_view value);
  // Several WriteSettings, in order, that reach the disk together or not at all.
  using Setting = std::pair<std::string_view, std::string>;
  void WriteSettings(const std::vector<Setting>& settings);
  // The same, held back by SAVE until that is committed.
  void WriteSettings(const std::vector<Setting>& settings, FileStore::Save& save);
  // The values of KEYS out of one reading of the file, each as by ReadSetting; nothing when the
  // file cannot be read.
  std::optional<std::vector<std::string>> ReadSettings(const std::vector<std::string_view>& keys);

  // folders.cpp
  // Whether PATH is a file (a folder is none).
  static bool FileExists(const std::string& path);
  // Deletes the file at PATH; what cannot be deleted stays.
  static void DeleteFile(const std::string& path);
  // Moves the file SOURCE to DESTINATION, over a file that may be there. False when that is not
  // possible; both are then as they were.
  static bool MoveFile(const std::string& source, const std::string& destination);
  // Whether NAME can be the name of a file in a folder: not empty, and no way into another folder.
  static bool IsFileName(std::string_view name);
  // Whether the leagues and Settings lie in the program's folder, however they got there: a link
  // that leads out of it would have somebody else's files deleted as teams. A folder that is
  // missing leads nowhere.
  bool KeepsToItsFolder() const;
  // The folder of the league RANK ("Rank F" to "Rank A"), without a separator at its end.
  std::string RankFolder(std::string_view rank) const;
  // The file of TEAM in the league RANK.
  std::string TeamPath(std::string_view rank, std::string_view team) const;
  // The file NAME in Settings.
  std::string SettingsPath(std::string_view name) const;
  const std::string& AppPath() const { return app_path_; }
  // How files reach the disk, for what lies below the operations of the game.
  FileStore& files() { return files_; }

  // wait_seconds.cpp
  // Waits until the clock has moved on by SECONDS, a number as text. A wait that spans midnight
  // lasts until the same time of the next day: the clock counts from midnight.
  void WaitSeconds(const std::string& seconds);

  // ui/screen.cpp
  // Lets the user drag FORM, as by its title bar. Called when the mouse goes down on it.
  static void DragWindow(Screen& form);

  // What the program has done since its start.
  struct Counts {
    std::int64_t rolls = 0;
    std::int64_t file_reads = 0;
    std::int64_t file_writes = 0;
  };
  const Counts& counts() const { return counts_; }

 private:
  std::string LinesOf(const RecordList& list);

  UiQueue& queue_;
  Dice& dice_;
  std::string app_path_;
  FileStore files_;
  Counts counts_;
};

}  // namespace frostmark
