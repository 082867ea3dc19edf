#include <algorithm>
#include <optional>

#include "records/ordvik.h"

namespace frostmark {
namespace {

constexpr std::string_view kSettingsFile = "settings.fmk";
constexpr std::string_view kSection = "Frostmark";
constexpr std::size_t kLongestValue = 254;

std::string_view Trimmed(std::string_view text) {
  const std::size_t start = text.find_first_not_of(" \t");
  if (start == std::string_view::npos) return {};
  return text.substr(start, text.find_last_not_of(" \t") - start + 1);
}

char Lower(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; }

// Sections and keys of an INI file are found without regard to case.
bool SameName(std::string_view a, std::string_view b) {
  return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                    [](char x, char y) { return Lower(x) == Lower(y); });
}

using Lines = std::vector<std::string>;

Lines SplitLines(std::string_view text) {
  Lines lines;
  while (!text.empty()) {
    const std::size_t end = std::min(text.find_first_of("\r\n"), text.size());
    lines.emplace_back(text.substr(0, end));
    const bool pair = text.substr(end, 2) == "\r\n";
    text.remove_prefix(std::min(end + (pair ? 2 : 1), text.size()));
  }
  return lines;
}

bool IsHeader(std::string_view line) { return !Trimmed(line).empty() && Trimmed(line)[0] == '['; }

bool IsOurHeader(std::string_view line) {
  const std::string_view text = Trimmed(line);
  const std::size_t end = text.find(']');
  return IsHeader(line) && end != std::string_view::npos &&
         SameName(Trimmed(text.substr(1, end - 1)), kSection);
}

bool IsKey(std::string_view line, std::string_view key) {
  const std::size_t equals = line.find('=');
  return equals != std::string_view::npos && SameName(Trimmed(line.substr(0, equals)), key);
}

// The lines of the section lie in [first, last); it is there only when `found`.
struct Section {
  bool found;
  std::size_t first;
  std::size_t last;
};

Section FindSection(const Lines& lines) {
  const auto header = std::find_if(lines.begin(), lines.end(), IsOurHeader);
  if (header == lines.end()) return {false, lines.size(), lines.size()};
  const auto next = std::find_if(header + 1, lines.end(), IsHeader);
  return {true, static_cast<std::size_t>(header + 1 - lines.begin()),
          static_cast<std::size_t>(next - lines.begin())};
}

std::optional<std::size_t> FindKey(const Lines& lines, const Section& section,
                                   std::string_view key) {
  for (std::size_t i = section.first; i < section.last; ++i) {
    if (IsKey(lines[i], key)) return i;
  }
  return std::nullopt;
}

void Store(Lines& lines, std::string_view key, std::string_view value) {
  std::string entry(key);
  entry += '=';
  entry += value;
  Section section = FindSection(lines);
  if (!section.found) {
    lines.push_back("[" + std::string(kSection) + "]");
    section = FindSection(lines);
  }
  if (const auto place = FindKey(lines, section, key)) {
    lines[*place] = entry;
    return;
  }
  // A new key goes after the last one of the section, before blank lines that part it from the
  // next.
  std::size_t end = section.last;
  while (end > section.first && Trimmed(lines[end - 1]).empty()) --end;
  lines.insert(lines.begin() + static_cast<std::ptrdiff_t>(end), entry);
}

// A value in quotes is read without them.
std::string_view Unquoted(std::string_view value) {
  const bool quoted = value.size() >= 2 && value.front() == value.back() &&
                      (value.front() == '"' || value.front() == '\'');
  return quoted ? value.substr(1, value.size() - 2) : value;
}

// What reading would take off a value's ends is saved by a pair of quotes around it.
std::string Quoted(const std::string& value) {
  constexpr std::string_view kTakenOff = " \t\"'";
  const bool needed = !value.empty() && (kTakenOff.find(value.front()) != std::string_view::npos ||
                                         kTakenOff.find(value.back()) != std::string_view::npos);
  return needed ? '"' + value + '"' : value;
}

std::string ValueIn(const Lines& lines, std::string_view key) {
  const auto place = FindKey(lines, FindSection(lines), key);
  if (!place) return {};
  const std::string_view line = lines[*place];
  return std::string(Unquoted(Trimmed(line.substr(line.find('=') + 1))).substr(0, kLongestValue));
}

std::string WithSettings(std::string_view content, const std::vector<Ordvik::Setting>& settings) {
  Lines lines = SplitLines(content);
  for (const auto& [key, value] : settings) Store(lines, key, Quoted(value));
  std::string text;
  for (const std::string& line : lines) {
    text += line;
    text += "\r\n";
  }
  return text;
}

}  // namespace

std::optional<std::vector<std::string>> Ordvik::ReadSettings(
    const std::vector<std::string_view>& keys) {
  ++counts_.file_reads;
  const auto content = files_.Read(SettingsPath(kSettingsFile));
  if (!content) return std::nullopt;
  const Lines lines = SplitLines(*content);
  std::vector<std::string> values;
  for (const std::string_view key : keys) values.push_back(ValueIn(lines, key));
  return values;
}

std::string Ordvik::ReadSetting(std::string_view key) {
  const auto values = ReadSettings({key});
  return values ? values->front() : "";
}

void Ordvik::WriteSetting(std::string_view key, std::string_view value) {
  WriteSettings({{key, std::string(value)}});
}

void Ordvik::WriteSettings(const std::vector<Setting>& settings) {
  ++counts_.file_writes;
  const std::string path = SettingsPath(kSettingsFile);
  (void)files_.Write(path, WithSettings(files_.Read(path).value_or(""), settings));
}

void Ordvik::WriteSettings(const std::vector<Setting>& settings, FileStore::Save& save) {
  ++counts_.file_writes;
  const std::string path = SettingsPath(kSettingsFile);
  save.Hold(path, WithSettings(files_.Read(path).value_or(""), settings));
}

}  // namespace frostmark
