// The message boxes and input boxes of the console.
#include "console/console_front_end.h"

namespace frostmark {
namespace {

const char* IconWord(BoxIcon icon) {
  switch (icon) {
    case BoxIcon::kStop:
      return "stop";
    case BoxIcon::kInformation:
      return "information";
    case BoxIcon::kQuestion:
      return "question";
    case BoxIcon::kNone:
      break;
  }
  return "none";
}

const char* ButtonWords(BoxButtons buttons) { return buttons == BoxButtons::kOk ? "ok" : "yes no"; }

// "y", "YES" and the like from a person.
bool Means(const std::string& text, const std::string& word) {
  if (text.empty() || text.size() > word.size()) return false;
  for (std::size_t i = 0; i < text.size(); ++i) {
    if ((text[i] | 0x20) != word[i]) return false;
  }
  return true;
}

}  // namespace

std::optional<std::string> ConsoleFrontEnd::TakeAnswer() {
  if (answers_.empty()) return std::nullopt;
  std::string answer = std::move(answers_.front());
  answers_.pop_front();
  return answer;
}

// A person reads the text in the lines that it has.
void ConsoleFrontEnd::PrintBox(std::string_view text) {
  std::size_t end = text.find('\n');
  while (interactive_ && end != std::string_view::npos) {
    transcript_.Line(text.substr(0, end));
    text.remove_prefix(end + 1);
    end = text.find('\n');
  }
  transcript_.Line(text);
}

Answer ConsoleFrontEnd::ShowBox(const MessageBox& box) {
  PrintBox(std::string("box ") + IconWord(box.icon) + " " + ButtonWords(box.buttons) + ": " +
           box.text);
  if (box.buttons == BoxButtons::kOk) {
    if (!answers_.empty() && answers_.front() == "ok") {
      TakeAnswer();
    } else if (interactive_) {
      AskPerson("Enter goes on> ");
    }
    return Answer::kOk;
  }
  if (answers_.empty() && interactive_) return AskPersonBox();
  const auto answer = TakeAnswer();
  if (answer == "yes") return Answer::kYes;
  if (answer == "no") return Answer::kNo;
  transcript_.Refuse(answer ? "the answer " + *answer + " does not fit the box: " + box.text
                            : "no answer for the box: " + box.text);
  return Answer::kNo;
}

std::string ConsoleFrontEnd::AskText(const std::string& prompt) {
  transcript_.Line("ask: " + prompt);
  if (answers_.empty() && interactive_) return AskPerson("answer (empty cancels)> ").value_or("");
  const auto answer = TakeAnswer();
  if (!answer) transcript_.Refuse("no answer for the question: " + prompt);
  return !answer || answer == "cancel" ? "" : *answer;
}

std::optional<std::string> ConsoleFrontEnd::AskPerson(const char* prompt) {
  if (!script_.Input().ShowPrompt(prompt)) transcript_.Prompt(prompt);
  transcript_.Flush();
  std::string line;
  if (script_.Input().ReadLine(line)) return line;
  transcript_.Line("");
  return std::nullopt;
}

Answer ConsoleFrontEnd::AskPersonBox() {
  for (;;) {
    const auto answer = AskPerson("yes or no> ");
    if (!answer || Means(*answer, "no")) return Answer::kNo;
    if (Means(*answer, "yes")) return Answer::kYes;
    transcript_.Refuse("a box is open");
  }
}

}  // namespace frostmark
