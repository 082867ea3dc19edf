#pragma once

#include <histedit.h>

#include <deque>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "console/command_source.h"

namespace frostmark {

// What a person types at a terminal, edited key by key, with a history and completion. It never
// holds up the program: WaitForInput returns after each key, so that time goes on while a line is
// half typed.
class LineEditor : public CommandSource {
 public:
  // What may stand in the place of the end of LINE: all words that go on as it ends.
  struct Completions {
    std::size_t start = 0;  // of the word in the line
    std::vector<std::string> words;
    bool more_follows = false;  // the line goes on after the word
  };
  using Completer = std::function<Completions(const std::string& line)>;

  // Whether standard input and output are a terminal that can move its cursor.
  static bool CanEdit();

  // Keeps the commands of former sessions in HISTORY_FILE, or none where it is empty.
  explicit LineEditor(std::string history_file);
  ~LineEditor() override;

  bool ReadLine(std::string& line) override;
  bool HasLine() const override { return ended_ || !lines_.empty(); }
  bool WaitForInput(Time at_most) override;
  bool ShowPrompt(const std::string& prompt) override;

  void SetCompleter(Completer completer) { completer_ = std::move(completer); }
  // The words that Tab has found, if it was pressed and there are several.
  std::vector<std::string> TakeFound() { return std::exchange(found_, {}); }

  // What takes the edited line off the terminal, with the cursor at its beginning then; it comes
  // back with the next wait. Empty when there is none.
  std::string TakeAway();

 private:
  struct EndOfEditing {
    void operator()(EditLine* editing) const { el_end(editing); }
  };
  struct EndOfHistory {
    void operator()(History* history) const { history_end(history); }
  };

  static char* PromptOf(EditLine* editing);
  static int NextKey(EditLine* editing, wchar_t* key);
  static unsigned char Complete(EditLine* editing, int key);
  static LineEditor& Of(EditLine* editing);

  void Show();
  void TakeKey();
  void Finish(std::string line);
  void StopEditing();
  std::string TypedSoFar() const;
  void SaveHistory();

  std::string history_file_;
  std::unique_ptr<History, EndOfHistory> history_;
  std::unique_ptr<EditLine, EndOfEditing> editing_;
  Completer completer_;
  std::vector<std::string> found_;
  std::string prompt_;
  std::map<std::string, std::string> drafts_;  // half typed lines, by their prompt
  std::deque<std::string> lines_;
  bool begun_ = false;  // the terminal gives key by key
  bool shown_ = false;
  bool ended_ = false;
};

// The prompt for commands: its lines, and no answers, are remembered and completed.
inline constexpr const char* kCommandPrompt = "> ";

// Where the history is kept between sessions: in the user's state folder. Empty where there is
// none.
std::string HistoryFile();

}  // namespace frostmark
