#include "console/front_page.h"

#include <algorithm>
#include <string>

#include "console/drawing.h"

namespace frostmark {
namespace {

constexpr std::size_t kTwoColumnsFrom = 110;
constexpr std::size_t kMenuBeside = 38;
constexpr std::size_t kGap = 2;
constexpr std::size_t kMenuCell = 38;
constexpr std::size_t kMenuIndent = 4;
constexpr int kMostListRows = 22;

std::string Numbered(const std::vector<MenuEntry>& menu, std::size_t i) {
  const std::string number = std::to_string(i + 1);
  return std::string(number.size() < 3 ? 3 - number.size() : 0, ' ') + number + " " + menu[i].words;
}

TextLines MenuInOneColumn(const std::vector<MenuEntry>& menu, std::size_t width) {
  TextLines lines;
  for (std::size_t i = 0; i < menu.size(); ++i) {
    for (std::string& line : Wrapped(Numbered(menu, i), width, kMenuIndent)) {
      lines.push_back(std::move(line));
    }
  }
  return lines;
}

// As many entries a line as fit, in cells, so that they stand below one another.
TextLines MenuInCells(const std::vector<MenuEntry>& menu, std::size_t width) {
  TextLines lines;
  std::string line;
  const auto finish = [&] {
    if (!line.empty()) lines.push_back(line.substr(0, line.find_last_not_of(' ') + 1));
    line.clear();
  };
  for (std::size_t i = 0; i < menu.size(); ++i) {
    const TextLines entry = Wrapped(Numbered(menu, i), width, kMenuIndent);
    if (WidthOf(line) + WidthOf(entry[0]) > width || entry.size() > 1) finish();
    for (std::size_t row = 0; row < entry.size(); ++row) {
      if (row > 0) finish();
      line += entry[row];
    }
    const std::size_t cells = WidthOf(line) / kMenuCell + 1;
    line = Padded(std::move(line), cells * kMenuCell);
  }
  finish();
  return lines;
}

// SCREEN with the longest lists that leave it within MOST_ROWS, if any do.
TextLines FittingScreen(const Screen& screen, std::size_t width, std::size_t most_rows) {
  Page page;
  page.width = width;
  page.lists_width = width - 2;
  page.for_menu = true;
  TextLines lines;
  for (page.list_rows = kMostListRows; page.list_rows > 0; --page.list_rows) {
    lines = DrawScreen(screen, page);
    if (lines.size() <= most_rows) break;
  }
  return lines;
}

TextLines Beside(const TextLines& screen, const TextLines& menu, std::size_t screen_width) {
  TextLines lines;
  for (std::size_t row = 0; row < std::max(screen.size(), menu.size()); ++row) {
    std::string line = row < screen.size() ? screen[row] : "";
    if (row < menu.size()) line = Padded(std::move(line), screen_width + kGap) + menu[row];
    lines.push_back(std::move(line));
  }
  return lines;
}

}  // namespace

TextLines DrawFrontPage(const Screen& screen, const std::vector<MenuEntry>& menu, TerminalSize size,
                        std::size_t rows_below) {
  // Some terminals go to the next line as soon as the last column is filled.
  const std::size_t width = size.columns - 1;
  const std::size_t rows = size.rows > rows_below ? size.rows - rows_below : 1;
  if (size.columns >= kTwoColumnsFrom) {
    const std::size_t screen_width = width - kMenuBeside - kGap;
    const TextLines beside = MenuInOneColumn(menu, kMenuBeside);
    if (beside.size() <= rows) {
      return Beside(FittingScreen(screen, screen_width, rows), beside, screen_width);
    }
  }
  const TextLines below = MenuInCells(menu, width);
  TextLines lines = FittingScreen(screen, width, rows > below.size() ? rows - below.size() : 1);
  lines.insert(lines.end(), below.begin(), below.end());
  return lines;
}

}  // namespace frostmark
