#include "console/line_editor.h"

#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <clocale>
#include <cstdio>
#include <cstdlib>
#include <cwchar>
#include <filesystem>
#include <string_view>
#include <system_error>
#include <utility>

#include "console/terminal_size.h"
#include "console/text_layout.h"

namespace frostmark {
namespace {

namespace fs = std::filesystem;

constexpr int kRemembered = 1000;
// The keys of an arrow come together; one that comes alone is not part of a sequence.
constexpr CommandSource::Time kWithinSequence = std::chrono::milliseconds(200);

std::string CommonStart(const std::vector<std::string>& words) {
  std::string start = words.front();
  for (const std::string& word : words) {
    const auto [end, other] = std::mismatch(start.begin(), start.end(), word.begin(), word.end());
    start.erase(end, start.end());
  }
  return start;
}

}  // namespace

bool LineEditor::CanEdit() {
  const char* const kind = std::getenv("TERM");
  return isatty(STDIN_FILENO) == 1 && isatty(STDOUT_FILENO) == 1 && kind != nullptr &&
         *kind != '\0' && std::string_view(kind) != "dumb";
}

LineEditor::LineEditor(std::string history_file) : history_file_(std::move(history_file)) {
  // The library asks the locale how wide a sign is and how it is written; texts of the game are
  // UTF-8 everywhere.
  std::setlocale(LC_CTYPE, "C.UTF-8");
  history_.reset(history_init());
  editing_.reset(el_init("frostmark-console", stdin, stdout, stderr));
  HistEvent event;
  history(history_.get(), &event, H_SETSIZE, kRemembered);
  history(history_.get(), &event, H_SETUNIQUE, 1);
  if (!history_file_.empty()) history(history_.get(), &event, H_LOAD, history_file_.c_str());
  EditLine* const editing = editing_.get();
  el_set(editing, EL_CLIENTDATA, this);
  el_set(editing, EL_PROMPT, &LineEditor::PromptOf);
  el_set(editing, EL_EDITOR, "emacs");
  el_set(editing, EL_SIGNAL, 1);
  el_set(editing, EL_HIST, &::history, history_.get());
  el_set(editing, EL_GETCFN, &LineEditor::NextKey);
  el_set(editing, EL_ADDFN, "complete-name", "Completes a name", &LineEditor::Complete);
  el_set(editing, EL_BIND, "^I", "complete-name", nullptr);
  el_set(editing, EL_BIND, "^R", "em-inc-search-prev", nullptr);
}

LineEditor::~LineEditor() {
  if (begun_) el_set(editing_.get(), EL_UNBUFFERED, 0);
  SaveHistory();
}

LineEditor& LineEditor::Of(EditLine* editing) {
  void* self = nullptr;
  el_get(editing, EL_CLIENTDATA, &self);
  return *static_cast<LineEditor*>(self);
}

char* LineEditor::PromptOf(EditLine* editing) { return Of(editing).prompt_.data(); }

// One sign; bytes that are not UTF-8 are passed over.
int LineEditor::NextKey(EditLine* editing, wchar_t* key) {
  std::mbstate_t state{};
  while (WaitToRead(STDIN_FILENO, kWithinSequence)) {
    char byte = 0;
    const ssize_t length = read(STDIN_FILENO, &byte, 1);
    if (length < 0 && errno == EINTR) continue;
    if (length <= 0) {
      Of(editing).ended_ = true;
      return 0;
    }
    const std::size_t taken = std::mbrtowc(key, &byte, 1, &state);
    if (taken <= 1) return 1;
    if (taken == static_cast<std::size_t>(-1)) state = {};
  }
  return 0;
}

bool LineEditor::ShowPrompt(const std::string& prompt) {
  if (prompt == prompt_) return true;
  if (begun_) {
    if (std::string typed = TypedSoFar(); !typed.empty()) drafts_[prompt_] = std::move(typed);
    StopEditing();
  }
  prompt_ = prompt;
  return true;
}

bool LineEditor::ReadLine(std::string& line) {
  while (!HasLine()) WaitForInput(Time::max());
  if (lines_.empty()) return false;
  line = std::move(lines_.front());
  lines_.pop_front();
  return true;
}

bool LineEditor::WaitForInput(Time at_most) {
  if (HasLine()) return true;
  Show();
  if (WaitToRead(STDIN_FILENO, at_most)) TakeKey();
  return HasLine();
}

void LineEditor::Show() {
  if (shown_) return;
  shown_ = true;
  if (!begun_) {
    begun_ = true;
    el_resize(editing_.get());
    el_set(editing_.get(), EL_UNBUFFERED, 1);  // shows the prompt
    const auto draft = drafts_.extract(prompt_);
    if (draft.empty()) return;
    el_insertstr(editing_.get(), draft.mapped().c_str());
    std::fputs("\r", stdout);
  }
  el_set(editing_.get(), EL_REFRESH);
}

void LineEditor::StopEditing() {
  el_set(editing_.get(), EL_UNBUFFERED, 0);
  begun_ = false;
  shown_ = false;
}

void LineEditor::TakeKey() {
  int count = 0;
  const char* const text = el_gets(editing_.get(), &count);
  if (text == nullptr && count == 0) ended_ = true;
  if (ended_ ||
      (text != nullptr && count > 0 && (text[count - 1] == '\n' || text[count - 1] == '\r'))) {
    Finish(ended_ ? "" : std::string(text, static_cast<std::size_t>(count) - 1));
  }
}

void LineEditor::Finish(std::string line) {
  StopEditing();
  if (ended_) return;
  if (prompt_ == kCommandPrompt && line.find_first_not_of(' ') != std::string::npos) {
    HistEvent event;
    history(history_.get(), &event, H_ENTER, line.c_str());
  }
  lines_.push_back(std::move(line));
}

std::string LineEditor::TypedSoFar() const {
  const LineInfo* const typed = el_line(editing_.get());
  return {typed->buffer, static_cast<std::size_t>(typed->lastchar - typed->buffer)};
}

std::string LineEditor::TakeAway() {
  if (!shown_) return "";
  shown_ = false;
  const LineInfo* const typed = el_line(editing_.get());
  const std::string_view before(typed->buffer,
                                static_cast<std::size_t>(typed->cursor - typed->buffer));
  const std::size_t rows = (WidthOf(prompt_) + WidthOf(before)) / SizeOfTerminal().columns;
  return (rows > 0 ? "\033[" + std::to_string(rows) + "A" : std::string()) + "\r\033[J";
}

unsigned char LineEditor::Complete(EditLine* editing, int /*key*/) {
  LineEditor& self = Of(editing);
  if (!self.completer_ || self.prompt_ != kCommandPrompt) return CC_ERROR;
  const LineInfo* const typed = el_line(editing);
  const std::string line(typed->buffer, static_cast<std::size_t>(typed->cursor - typed->buffer));
  Completions found = self.completer_(line);
  if (found.words.empty()) return CC_ERROR;
  const std::size_t there = line.size() - found.start;
  std::string more = CommonStart(found.words).substr(there);
  if (found.words.size() == 1 && found.more_follows) more += ' ';
  if (more.empty()) {
    self.found_ = std::move(found.words);
    return CC_NORM;
  }
  return el_insertstr(editing, more.c_str()) == 0 ? CC_REFRESH : CC_ERROR;
}

void LineEditor::SaveHistory() {
  if (history_file_.empty()) return;
  const fs::path file(history_file_);
  std::error_code error;
  fs::create_directories(file.parent_path(), error);
  if (error) return;
  const std::string unfinished = history_file_ + "." + std::to_string(getpid());
  HistEvent event;
  if (history(history_.get(), &event, H_SAVE, unfinished.c_str()) >= 0) {
    fs::permissions(unfinished, fs::perms::owner_read | fs::perms::owner_write, error);
    fs::rename(unfinished, file, error);
  }
  if (error) fs::remove(unfinished, error);
}

std::string HistoryFile() {
  const char* const state = std::getenv("XDG_STATE_HOME");
  const char* const home = std::getenv("HOME");
  fs::path folder;
  if (state != nullptr && *state == '/') {
    folder = state;
  } else if (home != nullptr && *home == '/') {
    folder = fs::path(home) / ".local" / "state";
  } else {
    return "";
  }
  return (folder / "frostmark" / "console-history").string();
}

}  // namespace frostmark
