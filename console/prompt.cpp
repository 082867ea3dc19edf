#include "console/prompt.h"

#include <algorithm>
#include <charconv>
#include <iterator>

#include "console/completion.h"
#include "console/front_page.h"
#include "console/hints.h"
#include "console/text_layout.h"

namespace frostmark {
namespace {

constexpr const char* kLook = "look ";

}  // namespace

Prompt::Prompt(Program& program, Names& names, Transcript& transcript, ScriptStack& script)
    : program_(program),
      transcript_(transcript),
      script_(script),
      editor_(dynamic_cast<LineEditor*>(&script.Input())),
      news_(program, [this](const std::string& line, bool lasting) { Tell(line, lasting); }) {
  if (editor_ != nullptr) {
    footer_.emplace(transcript, *editor_);
    editor_->SetCompleter([&names, &program](const std::string& line) {
      return CompletionsOf(line, names, program.screens);
    });
  }
  transcript_.PrintForPerson([this] {
    if (footer_) footer_->TakeAway();
  });
  transcript_.Line(
      "Frostmark. A number picks an entry of the menu, Enter draws the screen again, help tells "
      "more.");
}

void Prompt::Tell(const std::string& news, bool lasting) {
  if (footer_ && !lasting) return;  // the status tells it
  if (prompted_) transcript_.Line("");
  prompted_ = false;
  transcript_.Line("  * " + news);
}

void Prompt::ShowStatus() {
  if (footer_) footer_->Show(news_.Status());
}

// The one shown last, unless the person looks at another until something changes.
void Prompt::FindFront() {
  std::vector<Screen*> visible = program_.screens.VisibleOnes();
  if (visible == visible_) return;
  visible_ = std::move(visible);
  front_ = visible_.empty() ? nullptr : visible_.back();
}

std::vector<MenuEntry> Prompt::MenuOfFront() const {
  if (front_ == nullptr) return {};
  std::vector<MenuEntry> menu = MenuOf(*front_);
  for (const Screen* screen : visible_) {
    if (screen == front_) continue;
    menu.push_back({"Look at: " + Printable(screen->Title()), kLook + screen->Name(),
                    MenuEntry::Asks::kNothing});
  }
  return menu;
}

void Prompt::Refresh() {
  if (editor_ != nullptr) PrintFound(editor_->TakeFound());
  FindFront();
  std::vector<MenuEntry> menu = MenuOfFront();
  const TerminalSize size = SizeOfTerminal();
  if (!drawn_ || menu != menu_ || size != size_) {
    if (prompted_) transcript_.Line("");
    menu_ = std::move(menu);
    size_ = size;
    Draw();
    drawn_ = true;
    prompted_ = false;
  }
  ShowStatus();
  if (script_.Input().ShowPrompt(kCommandPrompt)) return;
  if (!prompted_) transcript_.Prompt(kCommandPrompt);
  prompted_ = true;
}

void Prompt::Draw() {
  if (front_ == nullptr) return;
  const std::size_t rows_below = news_.Status().empty() ? 1 : 2;
  transcript_.Line("");
  for (const std::string& line : DrawFrontPage(*front_, menu_, size_, rows_below)) {
    transcript_.Line(line);
  }
}

void Prompt::PrintFound(const std::vector<std::string>& words) {
  std::string line;
  for (const std::string& word : words) line += (line.empty() ? "" : "   ") + word;
  if (!line.empty()) transcript_.Line(line);
}

void Prompt::Help() {
  transcript_.Line("A number picks an entry of the menu; an item or a text can follow it: 4 2");
  transcript_.Line("The same in words, with the names that the commands of a script use:");
  for (const MenuEntry& entry : menu_) {
    if (entry.command.starts_with(kLook)) continue;
    const char* const rest = entry.asks == MenuEntry::Asks::kItem   ? " ITEM"
                             : entry.asks == MenuEntry::Asks::kText ? " TEXT"
                                                                    : "";
    transcript_.Line("  " + entry.command + rest);
  }
  transcript_.Line(
      "Or press what you read: press New. Tab completes, the arrows bring back what was typed. "
      "Others: wait SECONDS, show NAME, controls SCREEN, draw, exit; help COMMAND explains one.");
}

bool Prompt::Translate(std::string& line) {
  prompted_ = false;
  if (footer_) footer_->LeaveBehind();
  const bool has_words = line.find_first_not_of(" \t") != std::string::npos;
  if (line == "help" || line == "?") {
    Help();
    return false;
  }
  drawn_ = false;
  if (script_.AboveInput()) {
    FindFront();
    menu_ = MenuOfFront();
  }
  return has_words && line != "draw" && PickEntry(line) && !LookAt(line);
}

bool Prompt::LookAt(const std::string& line) {
  if (!line.starts_with(kLook)) return false;
  const auto found = std::find_if(visible_.begin(), visible_.end(), [&](const Screen* screen) {
    return kLook + screen->Name() == line;
  });
  if (found == visible_.end()) return false;
  front_ = *found;
  return true;
}

bool Prompt::PickEntry(std::string& line) {
  std::size_t number = 0;
  const auto [end, error] = std::from_chars(line.data(), line.data() + line.size(), number);
  const auto length = static_cast<std::size_t>(std::distance<const char*>(line.data(), end));
  if (error != std::errc() || (length < line.size() && line[length] != ' ')) return true;
  if (number < 1 || number > menu_.size()) {
    transcript_.Refuse("the menu has no entry " + std::to_string(number));
    return false;
  }
  const MenuEntry& entry = menu_[number - 1];
  std::string rest = length < line.size() ? line.substr(length + 1) : "";
  if (rest.empty() && !AskForRest(entry, rest)) return false;
  line = entry.asks == MenuEntry::Asks::kNothing ? entry.command : entry.command + " " + rest;
  return true;
}

bool Prompt::AskForRest(const MenuEntry& entry, std::string& rest) {
  if (entry.asks == MenuEntry::Asks::kNothing) return true;
  const char* const prompt =
      entry.asks == MenuEntry::Asks::kItem ? "number of the item> " : "text> ";
  if (!script_.Input().ShowPrompt(prompt)) transcript_.Prompt(prompt);
  transcript_.Flush();
  return script_.Input().ReadLine(rest) && (entry.asks == MenuEntry::Asks::kText || !rest.empty());
}

}  // namespace frostmark
