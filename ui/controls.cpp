#include "ui/controls.h"

#include <algorithm>
#include <filesystem>
#include <system_error>

namespace frostmark {
namespace {

// How many bytes the first COUNT characters of UTF-8 TEXT take.
std::size_t BytesOfCharacters(std::string_view text, int count) {
  std::size_t at = 0;
  while (at < text.size()) {
    const bool starts_character = (static_cast<unsigned char>(text[at]) & 0xC0U) != 0x80U;
    if (starts_character && count-- == 0) break;
    ++at;
  }
  return at;
}

// How many bytes at AT of UTF-8 TEXT are a control character: one below the blank, DEL, or one of
// those of two bytes (U+0080 to U+009F). 0 if there is none.
std::size_t ControlCharacterAt(std::string_view text, std::size_t at) {
  const auto byte = [&](std::size_t i) { return static_cast<unsigned char>(text[i]); };
  if (byte(at) < 0x20U || byte(at) == 0x7FU) return 1;
  const bool of_two_bytes = byte(at) == 0xC2U && at + 1 < text.size();
  return of_two_bytes && byte(at + 1) >= 0x80U && byte(at + 1) < 0xA0U ? 2 : 0;
}

unsigned char Lower(char c) {
  return static_cast<unsigned char>(c >= 'A' && c <= 'Z' ? c - 'A' + 'a' : c);
}

bool BeforeWithoutCase(const std::string& a, const std::string& b) {
  const auto difference = std::mismatch(a.begin(), a.end(), b.begin(), b.end(),
                                        [](char x, char y) { return Lower(x) == Lower(y); });
  if (difference.first == a.end() && difference.second == b.end()) return a < b;
  if (difference.first == a.end() || difference.second == b.end()) return a.size() < b.size();
  return Lower(*difference.first) < Lower(*difference.second);
}

// False when the listing failed half-way.
bool ListFiles(const std::string& folder, std::vector<std::string>& names) {
  namespace fs = std::filesystem;
  names.clear();
  std::error_code error;
  fs::directory_iterator entry(folder, error);
  for (const fs::directory_iterator end; !error && entry != end; entry.increment(error)) {
    std::error_code ignored;
    if (entry->is_regular_file(ignored)) names.push_back(entry->path().filename().string());
  }
  return !error;
}

std::vector<std::string> FileNames(const std::string& folder) {
  std::vector<std::string> names;
  // Half a listing would count as a shorter league, so it is read once more.
  if (!ListFiles(folder, names)) ListFiles(folder, names);
  std::sort(names.begin(), names.end(), BeforeWithoutCase);
  return names;
}

}  // namespace

CaptionedControl::CaptionedControl(Place place, ControlKind kind, std::string name,
                                   std::string caption, Start start, Called called)
    : Control(place, kind, std::move(name), start, called), caption_(std::move(caption)) {}

void CaptionedControl::SetCaption(std::string_view caption) {
  if (caption_ == caption) return;
  caption_.assign(caption);
  Changed();
}

std::string TextBox::TakenOf(std::string_view text) {
  std::string taken;
  for (std::size_t at = 0; at < text.size();) {
    const std::size_t refused = text[at] == '/' ? 1 : ControlCharacterAt(text, at);
    if (refused == 0) taken += text[at];
    at += std::max<std::size_t>(refused, 1);
  }
  return taken;
}

void TextBox::Type(std::string_view text) {
  const std::string taken = TakenOf(text);
  const std::size_t end = max_length_ == 0 ? taken.size() : BytesOfCharacters(taken, max_length_);
  SetText(std::string_view(taken).substr(0, end));
}

void ListBox::Select(int i) {
  SetListIndex(i);
  Raise(OnClick);
}

void ListBox::DoubleClick(int i) {
  Select(i);
  Raise(OnDoubleClick);
}

void FileListBox::SetPath(std::string path) {
  path_ = std::move(path);
  Clear();
  for (const std::string& name : FileNames(path_)) AddItem(name);
}

void TabStrip::SetFront(int i) {
  if (i == front_) return;
  front_ = i;
  Changed();
}

void ProgressBar::SetValue(int value) {
  if (value == value_) return;
  value_ = value;
  Changed();
}

}  // namespace frostmark
