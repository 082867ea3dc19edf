#include "console/prompt.h"

#include <charconv>
#include <iterator>

#include "console/drawing.h"
#include "console/list_drawing.h"

namespace frostmark {
namespace {

constexpr std::size_t kColumnWidth = 38;

}  // namespace

Prompt::Prompt(Program& program, Transcript& transcript, ScriptStack& script)
    : program_(program),
      transcript_(transcript),
      script_(script),
      game_news_(program.game.Events, true, *this),
      draft_news_(program.f_draft.Events, false, *this) {
  program.game.Events.SetObserver(&game_news_);
  program.f_draft.Events.SetObserver(&draft_news_);
  transcript_.Line(
      "Frostmark. A number picks an entry of the menu, Enter draws anew, help tells more.");
}

Prompt::~Prompt() {
  program_.game.Events.SetObserver(nullptr);
  program_.f_draft.Events.SetObserver(nullptr);
}

void Prompt::Tell(const std::string& news) {
  if (prompted_) transcript_.Line("");
  prompted_ = false;
  transcript_.Line("  * " + Printable(news));
}

void Prompt::Refresh() {
  std::vector<MenuEntry> menu = MenuOf(program_.screens);
  if (!drawn_ || menu != menu_) {
    if (prompted_) transcript_.Line("");
    menu_ = std::move(menu);
    Draw();
    drawn_ = true;
    prompted_ = false;
  }
  if (!prompted_) transcript_.Prompt("> ");
  prompted_ = true;
}

void Prompt::Draw() {
  transcript_.Line("");
  DrawScreens(program_.screens, transcript_);
  transcript_.Line("");
  std::string line;
  for (std::size_t i = 0; i < menu_.size(); ++i) {
    const std::string number = std::to_string(i + 1);
    std::string entry =
        std::string(number.size() < 3 ? 3 - number.size() : 0, ' ') + number + " " + menu_[i].words;
    if (!line.empty() && WidthOf(entry) < kColumnWidth) {
      transcript_.Line(line + entry);
      line.clear();
      continue;
    }
    if (!line.empty()) transcript_.Line(line);
    line = std::move(entry);
    line.append(kColumnWidth - std::min(kColumnWidth, WidthOf(line)), ' ');
    if (WidthOf(line) > kColumnWidth) {
      transcript_.Line(line);
      line.clear();
    }
  }
  if (!line.empty()) transcript_.Line(line);
}

void Prompt::Help() {
  transcript_.Line("A number picks an entry of the menu; an item or a text can follow it: 4 2");
  transcript_.Line("The same in words, with the names that the commands of a script use:");
  for (const MenuEntry& entry : menu_) {
    const char* const rest = entry.asks == MenuEntry::Asks::kItem   ? " ITEM"
                             : entry.asks == MenuEntry::Asks::kText ? " TEXT"
                                                                    : "";
    transcript_.Line("  " + entry.command + rest);
  }
  transcript_.Line("Others: wait SECONDS, show NAME, state NAME, screens, draw, stats, exit.");
}

bool Prompt::Translate(std::string& line) {
  prompted_ = false;
  const bool has_words = line.find_first_not_of(" \t") != std::string::npos;
  if (line == "help" || line == "?") {
    Help();
    return false;
  }
  drawn_ = false;
  return has_words && PickEntry(line);
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
  transcript_.Prompt(entry.asks == MenuEntry::Asks::kItem ? "number of the item> " : "text> ");
  return script_.Input().ReadLine(rest) && (entry.asks == MenuEntry::Asks::kText || !rest.empty());
}

}  // namespace frostmark
