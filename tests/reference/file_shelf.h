#pragma once

#include <map>
#include <string>
#include <vector>

#include "tests/reference/text_records.h"

namespace frostmark::reference {

// The files of one program's folder, kept in memory. A key is a full path, a value the content.
class FileShelf {
 public:
  std::map<std::string, std::string> files;

  bool Exists(const std::string& path) const { return files.contains(path); }
  // A line an item, each ended by carriage return and line feed.
  void WriteLines(const std::string& path, const Lines& lines);
  // All items of a file that is there.
  Lines ReadItems(const std::string& path) const;
  // The names of the files in FOLDER, by the alphabet without regard to case.
  Lines List(const std::string& folder) const;
  // Copies a file, then deletes the source. Fatal when there is no such file.
  void Move(const std::string& source, const std::string& destination);

  // The settings file at PATH with its one section.
  void WriteSetting(const std::string& path, const std::string& key, const std::string& value);
  std::string ReadSetting(const std::string& path, const std::string& key) const;
};

}  // namespace frostmark::reference
