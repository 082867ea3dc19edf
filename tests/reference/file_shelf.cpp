#include "tests/reference/file_shelf.h"

#include <algorithm>
#include <cctype>

namespace frostmark::reference {

namespace {

std::string LowerCase(std::string text) {
  for (char& c : text) c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
  return text;
}

bool EndsItem(char c) { return c == ',' || c == '\r' || c == '\n'; }

// Behind the one comma or line end at AT; carriage return and line feed together are one.
std::size_t BehindEnd(const std::string& text, std::size_t at) {
  if (at < text.size() && text[at] == '\r' && at + 1 < text.size() && text[at + 1] == '\n') {
    return at + 2;
  }
  return at < text.size() ? at + 1 : at;
}

Lines LinesOf(const std::string& content) {
  Lines lines;
  std::string line;
  for (const char c : content) {
    if (c == '\n') {
      lines.push_back(line);
      line.clear();
    } else if (c != '\r') {
      line += c;
    }
  }
  if (!line.empty()) lines.push_back(line);
  return lines;
}

}  // namespace

void FileShelf::WriteLines(const std::string& path, const Lines& lines) {
  std::string content;
  for (const std::string& line : lines) content += line + "\r\n";
  files[path] = content;
}

Lines FileShelf::ReadItems(const std::string& path) const {
  const std::string& text = files.at(path);
  Lines items;
  std::size_t at = 0;
  while (at < text.size()) {
    while (at < text.size() && text[at] == ' ') ++at;
    std::string item;
    if (at < text.size() && text[at] == '"') {
      ++at;
      while (at < text.size() && text[at] != '"') item += text[at++];
      while (at < text.size() && !EndsItem(text[at])) ++at;
    } else {
      while (at < text.size() && !EndsItem(text[at])) item += text[at++];
    }
    at = BehindEnd(text, at);
    items.push_back(item);
  }
  return items;
}

Lines FileShelf::List(const std::string& folder) const {
  Lines names;
  for (const auto& [path, content] : files) {
    const std::size_t slash = path.rfind('/');
    if (path.substr(0, slash) == folder) names.push_back(path.substr(slash + 1));
  }
  std::sort(names.begin(), names.end(),
            [](const std::string& a, const std::string& b) { return LowerCase(a) < LowerCase(b); });
  return names;
}

void FileShelf::Move(const std::string& source, const std::string& destination) {
  if (!Exists(source)) throw Fatal{"No file to move: " + source};
  files[destination] = files[source];
  files.erase(source);
}

void FileShelf::WriteSetting(const std::string& path, const std::string& key,
                             const std::string& value) {
  Lines lines = LinesOf(files[path]);
  if (lines.empty()) lines.push_back("[Frostmark]");
  bool found = false;
  for (std::string& line : lines) {
    if (line.rfind(key + "=", 0) == 0) {
      line = key + "=" + value;
      found = true;
    }
  }
  if (!found) lines.push_back(key + "=" + value);
  WriteLines(path, lines);
}

std::string FileShelf::ReadSetting(const std::string& path, const std::string& key) const {
  if (!Exists(path)) return "";
  for (const std::string& line : LinesOf(files.at(path))) {
    if (line.rfind(key + "=", 0) == 0) return line.substr(key.size() + 1, 254);
  }
  return "";
}

}  // namespace frostmark::reference
