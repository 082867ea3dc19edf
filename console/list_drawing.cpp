#include "console/list_drawing.h"

#include <algorithm>

#include "console/hints.h"

namespace frostmark {
namespace {

constexpr std::size_t kGap = 3;

int FirstRow(const ListBox& list, int most_rows) {
  const int last_start = std::max(0, list.ListCount() - most_rows);
  if (list.ListIndex() >= 0) return std::clamp(list.ListIndex() - most_rows / 2, 0, last_start);
  return GrowsAtItsEnd(list) ? last_start : 0;
}

std::size_t BlockWidth(const TextLines& block) {
  std::size_t width = 0;
  for (const std::string& line : block) width = std::max(width, WidthOf(line));
  return width;
}

void PutRow(const std::vector<TextLines>& blocks, std::size_t first, std::size_t end,
            TextLines& lines) {
  std::size_t height = 0;
  for (std::size_t b = first; b < end; ++b) height = std::max(height, blocks[b].size());
  for (std::size_t row = 0; row < height; ++row) {
    std::string line;
    std::size_t start = 0;
    for (std::size_t b = first; b < end; ++b) {
      if (row < blocks[b].size()) {
        line.append(start - std::min(start, WidthOf(line)), ' ');
        line += blocks[b][row];
      }
      start += BlockWidth(blocks[b]) + kGap;
    }
    lines.push_back(std::move(line));
  }
}

}  // namespace

TextLines DrawList(const ListBox& list, const std::string& heading, int most_rows) {
  TextLines lines = {heading + (list.Enabled() ? "" : " (closed)")};
  const int first = FirstRow(list, most_rows);
  const int end = std::min(list.ListCount(), first + most_rows);
  if (first > 0) lines.push_back("     ... " + std::to_string(first) + " before");
  for (int i = first; i < end; ++i) {
    const std::string number = std::to_string(i);
    lines.push_back((i == list.ListIndex() ? " >" : "  ") +
                    std::string(number.size() < 3 ? 3 - number.size() : 0, ' ') + number + " " +
                    Printable(list.List(i)));
  }
  if (end < list.ListCount()) {
    lines.push_back("     ... " + std::to_string(list.ListCount() - end) + " more");
  }
  if (list.ListCount() == 0) lines.emplace_back("     (empty)");
  return lines;
}

TextLines PutSideBySide(const std::vector<TextLines>& blocks, std::size_t width_of_page) {
  TextLines lines;
  std::size_t first = 0;
  while (first < blocks.size()) {
    std::size_t end = first + 1;
    std::size_t width = BlockWidth(blocks[first]);
    while (end < blocks.size() && width + kGap + BlockWidth(blocks[end]) <= width_of_page) {
      width += kGap + BlockWidth(blocks[end++]);
    }
    PutRow(blocks, first, end, lines);
    first = end;
  }
  return lines;
}

}  // namespace frostmark
