#include "console/transcript.h"

#include <unistd.h>

#include <cerrno>

#include "console/terminal_size.h"
#include "console/text_layout.h"

namespace frostmark {
namespace {

constexpr std::size_t kEnough = 1 << 16;
constexpr std::size_t kIndent = 4;

void AppendEscaped(std::string& out, std::string_view text) {
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (text[i] == '\n') {
      out += "\\n";
    } else if (text[i] != '\r') {
      out += text[i];
    } else if (i + 1 == text.size() || text[i + 1] != '\n') {
      out += "\\r";
    }
  }
}

}  // namespace

void Transcript::Line(std::string_view text) {
  if (!for_person_) return PrintLine(text);
  if (before_line_) before_line_();
  std::string escaped;
  AppendEscaped(escaped, text);
  for (const std::string& line :
       Wrapped(Printable(escaped), SizeOfTerminal().columns - 1, kIndent)) {
    PrintLine(line);
  }
}

void Transcript::PrintLine(std::string_view text) {
  AppendEscaped(waiting_, text);
  waiting_ += '\n';
  if (waiting_.size() > kEnough) Flush();
}

void Transcript::Refuse(std::string_view reason) {
  has_refused_ = true;
  Line("refused: " + std::string(reason));
}

void Transcript::Prompt(std::string_view text) {
  waiting_ += text;
  Flush();
}

void Transcript::Flush() {
  std::string_view rest = waiting_;
  while (is_heard_ && !rest.empty()) {
    const ssize_t written = write(STDOUT_FILENO, rest.data(), rest.size());
    if (written < 0 && errno == EINTR) continue;
    if (written <= 0) {
      is_heard_ = false;
      break;
    }
    rest.remove_prefix(static_cast<std::size_t>(written));
  }
  waiting_.clear();
}

}  // namespace frostmark
