#include "console/text_layout.h"

#include <algorithm>
#include <array>

namespace frostmark {
namespace {

constexpr char32_t kBroken = 0xFFFFFFFF;

struct Range {
  char32_t first;
  char32_t last;
};

// Controls, invisible signs, marks of the direction of writing, signs for programs.
constexpr std::array<Range, 14> kNotForTheEye = {{{0x00, 0x1F},
                                                  {0x7F, 0x9F},
                                                  {0xAD, 0xAD},
                                                  {0x61C, 0x61C},
                                                  {0x180E, 0x180E},
                                                  {0x200B, 0x200F},
                                                  {0x2028, 0x202E},
                                                  {0x2060, 0x206F},
                                                  {0xD800, 0xF8FF},
                                                  {0xFEFF, 0xFEFF},
                                                  {0xFFF0, 0xFFFC},
                                                  {0xFFFE, 0xFFFF},
                                                  {0xE0000, 0xE0FFF},
                                                  {0xF0000, kBroken}}};
constexpr std::array<Range, 5> kOverTheLastOne = {
    {{0x300, 0x36F}, {0x1AB0, 0x1AFF}, {0x1DC0, 0x1DFF}, {0x20D0, 0x20FF}, {0xFE00, 0xFE2F}}};
constexpr std::array<Range, 9> kTwoColumns = {{{0x1100, 0x115F},
                                               {0x2E80, 0xA4CF},
                                               {0xAC00, 0xD7A3},
                                               {0xF900, 0xFAFF},
                                               {0xFE30, 0xFE6F},
                                               {0xFF00, 0xFF60},
                                               {0xFFE0, 0xFFE6},
                                               {0x1F300, 0x1FAFF},
                                               {0x20000, 0x3FFFD}}};

template <std::size_t count>
bool IsIn(const std::array<Range, count>& ranges, char32_t sign) {
  return std::any_of(ranges.begin(), ranges.end(), [sign](const Range& range) {
    return sign >= range.first && sign <= range.last;
  });
}

// Takes the first sign off TEXT: kBroken, and one byte, where it is not UTF-8.
char32_t TakeSign(std::string_view& text) {
  constexpr std::array<char32_t, 5> kLeast = {0, 0, 0x80, 0x800, 0x10000};
  const auto byte = [&text](std::size_t i) { return static_cast<unsigned char>(text[i]); };
  const unsigned first = byte(0);
  const std::size_t length = first < 0x80    ? 1
                             : first < 0xC0  ? 0
                             : first < 0xE0  ? 2
                             : first < 0xF0  ? 3
                             : first < 0xF8U ? 4
                                             : 0;
  char32_t sign = length < 2 ? first : first & (0x7FU >> length);
  bool whole = length > 0 && length <= text.size();
  for (std::size_t i = 1; whole && i < length; ++i) {
    whole = (byte(i) & 0xC0U) == 0x80;
    sign = sign << 6U | (byte(i) & 0x3FU);
  }
  if (!whole || sign < kLeast[length]) sign = kBroken;
  text.remove_prefix(sign == kBroken ? 1 : length);
  return sign;
}

std::size_t Columns(char32_t sign) {
  if (sign == kBroken) return 1;
  return IsIn(kOverTheLastOne, sign) ? 0 : IsIn(kTwoColumns, sign) ? 2 : 1;
}

}  // namespace

std::size_t WidthOf(std::string_view text) {
  std::size_t width = 0;
  while (!text.empty()) width += Columns(TakeSign(text));
  return width;
}

std::string Printable(std::string_view text) {
  std::string printable;
  while (!text.empty()) {
    const std::string_view before = text;
    if (IsIn(kNotForTheEye, TakeSign(text))) {
      printable += '?';
    } else {
      printable += before.substr(0, before.size() - text.size());
    }
  }
  return printable;
}

std::string Padded(std::string text, std::size_t width) {
  const std::size_t own = WidthOf(text);
  if (own < width) text.append(width - own, ' ');
  return text;
}

std::string Cut(std::string_view text, std::size_t width) {
  std::string_view rest = text;
  for (std::size_t used = 0; !rest.empty();) {
    const std::string_view before = rest;
    used += Columns(TakeSign(rest));
    if (used > width) return std::string(text.substr(0, text.size() - before.size()));
  }
  return std::string(text);
}

TextLines Wrapped(std::string_view text, std::size_t width, std::size_t indent) {
  TextLines lines;
  std::string margin;
  while (WidthOf(text) + margin.size() > width) {
    std::string line = Cut(text, width - margin.size());
    const bool word_ends = line.size() < text.size() && text[line.size()] == ' ';
    const std::size_t gap = word_ends ? line.size() : line.find_last_of(' ');
    // A gap at the very beginning is an indentation, not a place between words.
    if (gap != std::string::npos && line.find_first_not_of(' ') < gap) line.resize(gap);
    if (line.empty()) break;
    text.remove_prefix(line.size());
    text.remove_prefix(std::min(text.find_first_not_of(' '), text.size()));
    lines.push_back(margin + line.substr(0, line.find_last_not_of(' ') + 1));
    margin.assign(indent, ' ');
  }
  if (!text.empty() || lines.empty()) lines.push_back(margin + std::string(text));
  return lines;
}

}  // namespace frostmark
