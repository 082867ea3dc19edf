#include "console/completion.h"

#include <algorithm>
#include <string_view>
#include <vector>

#include "console/captions.h"
#include "console/commands.h"
#include "console/drawing.h"
#include "console/refusal.h"

namespace frostmark {
namespace {

using Choices = std::vector<std::string>;

Choices NamesOfCommands() {
  Choices all;
  for (const Command* command : AllCommands()) all.emplace_back(command->name);
  return all;
}

bool Takes(std::string_view command, Control& control) {
  if (command == "click" || command == "press") return CanBePressed(control);
  const ControlKind kind = control.Kind();
  if (command == "select" || command == "dblclick") return AsList(control) != nullptr;
  if (command == "type") return kind == ControlKind::kTextBox;
  if (command == "choose") return kind == ControlKind::kComboBox;
  if (command == "tab") return kind == ControlKind::kTabStrip;
  return true;
}

// The controls that COMMAND takes and a person sees, by their names, or by what is read on them.
Choices ControlsFor(std::string_view command, const ScreenList& screens) {
  Choices all;
  for (const Screen* screen : screens.VisibleOnes()) {
    for (Control* control : screen->Controls()) {
      if (!InSight(*control) || !Takes(command, *control)) continue;
      all.push_back(command == "press" ? CaptionToPress(*control) : control->FullName());
    }
  }
  return all;
}

Choices NamesOfScreens(const std::vector<Screen*>& screens) {
  Choices all;
  for (const Screen* screen : screens) all.push_back(screen->Name());
  return all;
}

// What the second word of `choose` and `tab` may be.
Choices TextsOf(std::string_view command, const std::string& name, Names& names) {
  try {
    Control& control = names.FindControl(name);
    if (command == "choose" && control.Kind() == ControlKind::kComboBox) {
      return static_cast<ComboBox&>(control).Items();
    }
    if (command == "tab" && control.Kind() == ControlKind::kTabStrip) {
      return static_cast<TabStrip&>(control).Tabs();
    }
  } catch (const Refusal&) {  // it is not a control yet
  }
  return {};
}

Choices FirstArguments(std::string_view command, Names& names, const ScreenList& screens) {
  if (command == "help") return NamesOfCommands();
  if (command == "controls") return NamesOfScreens(screens.All());
  if (command == "close") return NamesOfScreens(screens.VisibleOnes());
  if (command == "answers") return {"none"};
  if (command == "trace") return {"rolls"};
  Choices all = ControlsFor(command, screens);
  if (command == "show" || command == "set" || command == "until") {
    const Choices variables = names.Variables();
    all.insert(all.end(), variables.begin(), variables.end());
  }
  return all;
}

bool TakesNames(std::string_view command) {
  constexpr std::string_view kOthers[] = {"wait", "answer", "rolls",   "soon",
                                          "exit", "stats",  "screens", "draw",
                                          "end",  "repeat", "call",    "include"};
  return FindCommand(command) != nullptr &&
         std::find(std::begin(kOthers), std::end(kOthers), command) == std::end(kOthers);
}

// Whether something follows the name that COMMAND takes.
bool GoesOn(std::string_view command) {
  constexpr std::string_view kOnes[] = {"select", "dblclick", "type", "choose",
                                        "tab",    "until",    "set",  "trace"};
  return std::find(std::begin(kOnes), std::end(kOnes), command) != std::end(kOnes);
}

}  // namespace

LineEditor::Completions CompletionsOf(const std::string& line, Names& names,
                                      const ScreenList& screens) {
  LineEditor::Completions found;
  Choices words;
  const std::size_t first_end = line.find(' ');
  const std::string command = line.substr(0, first_end);
  if (first_end == std::string::npos) {
    words = NamesOfCommands();
    found.more_follows = true;
  } else if (TakesNames(command)) {
    found.start = first_end + 1;
    const std::size_t second_end = line.find(' ', found.start);
    if (second_end == std::string::npos || command == "press") {
      words = FirstArguments(command, names, screens);
      found.more_follows = GoesOn(command);
    } else {
      words = TextsOf(command, line.substr(found.start, second_end - found.start), names);
      found.start = second_end + 1;
    }
  }
  const std::string_view begun = std::string_view(line).substr(found.start);
  for (std::string& word : words) {
    if (!word.empty() && word.starts_with(begun)) found.words.push_back(std::move(word));
  }
  std::sort(found.words.begin(), found.words.end());
  found.words.erase(std::unique(found.words.begin(), found.words.end()), found.words.end());
  return found;
}

}  // namespace frostmark
