#include "tests/support/texts.h"

#include <fstream>
#include <sstream>
#include <stdexcept>

namespace frostmark::test {

std::string ReadText(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  std::ostringstream content;
  content << file.rdbuf();
  return content.str();
}

void WriteText(const std::string& path, std::string_view content) {
  std::ofstream file(path, std::ios::binary);
  file << content;
  if (!file.flush()) throw std::runtime_error("cannot write " + path);
}

Lines ReadLines(const std::string& path) {
  Lines lines;
  std::istringstream content(ReadText(path));
  for (std::string line; std::getline(content, line);) {
    if (!line.empty() && line.back() == '\r') line.pop_back();
    lines.push_back(line);
  }
  return lines;
}

std::string JoinLines(const Lines& lines) {
  std::string content;
  for (const std::string& line : lines) content += line + "\r\n";
  return content;
}

Lines ItemsOf(const RecordList& list) {
  Lines items;
  for (int i = 0; i < list.ListCount(); ++i) items.push_back(list.List(i));
  return items;
}

void FillList(RecordList& list, const Lines& items) {
  list.Clear();
  for (const std::string& item : items) list.AddItem(item);
}

}  // namespace frostmark::test
