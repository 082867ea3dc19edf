#include "console/terminal_size.h"

#include <sys/ioctl.h>
#include <unistd.h>

#include <algorithm>
#include <charconv>
#include <cstdlib>
#include <string_view>

namespace frostmark {
namespace {

std::size_t FromEnvironment(const char* name, std::size_t otherwise) {
  const char* const text = std::getenv(name);
  if (text == nullptr) return otherwise;
  const std::string_view digits(text);
  std::size_t number = 0;
  const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), number);
  return error == std::errc() && number > 0 && number < 10'000 ? number : otherwise;
}

}  // namespace

TerminalSize SizeOfTerminal() {
  winsize size{};
  if (ioctl(STDOUT_FILENO, TIOCGWINSZ, &size) != 0) size = {};
  const std::size_t columns = size.ws_col > 0 ? size.ws_col : FromEnvironment("COLUMNS", 80);
  const std::size_t rows = size.ws_row > 0 ? size.ws_row : FromEnvironment("LINES", 24);
  return {std::max<std::size_t>(columns, 20), std::max<std::size_t>(rows, 5)};
}

}  // namespace frostmark
