// What a person does with mouse and keyboard, and "force", which does it where no person could.
#include <algorithm>
#include <array>

#include "console/captions.h"
#include "console/commands.h"
#include "console/console.h"
#include "console/refusal.h"

namespace frostmark {
namespace {

// The handlers that these commands raise may run for hours with other commands on top of them, so
// names and texts are dealt with in functions of their own and are gone by then.

const Handler& HandlerToClick(Console& console, Words& words, bool checked) {
  const std::string name = words.Next("a name");
  words.ExpectEnd();
  Control& control = console.names.FindControl(name);
  const Handler* handler = ClickHandler(control);
  if (handler == nullptr) throw Refusal{name + " cannot be clicked"};
  if (checked) CheckReach(control);
  return *handler;
}

void Click(Console& console, Words& words) { Raise(HandlerToClick(console, words, true)); }

void Force(Console& console, Words& words) { Raise(HandlerToClick(console, words, false)); }

// The control that bears the caption which the line ends with, in quotes or without.
Control& ControlToPress(const ScreenList& screens, Words& words) {
  if (words.AtEnd()) throw Refusal{"a caption is missing"};
  std::string caption;
  if (words.Peek() == '"') {
    caption = words.Next("a caption");
    words.ExpectEnd();
  } else {
    caption = words.Rest();
  }
  return FindByCaption(screens, caption);
}

void Press(Console& console, Words& words) {
  Raise(*ClickHandler(ControlToPress(console.program.screens, words)));
}

struct ChosenItem {
  ListBox& list;
  int index;
};

ChosenItem ItemToChoose(Console& console, Words& words, int least) {
  const std::string name = words.Next("a list");
  const int index = words.NextNumber("the index");
  words.ExpectEnd();
  Control& control = console.names.FindControl(name);
  ListBox* const list = AsList(control);
  if (list == nullptr) throw Refusal{name + " is no list"};
  CheckReach(control);
  if (index < least || index >= list->ListCount()) {
    throw Refusal{name + " has no item " + std::to_string(index)};
  }
  return {*list, index};
}

void Select(Console& console, Words& words) {
  const ChosenItem item = ItemToChoose(console, words, -1);
  if (item.index == -1) {
    item.list.SetListIndex(-1);
  } else {
    item.list.Select(item.index);
  }
}

void DoubleClick(Console& console, Words& words) {
  const ChosenItem item = ItemToChoose(console, words, 0);
  item.list.DoubleClick(item.index);
}

// The control named next, which is of the class Kind and within reach.
template <typename Kind>
Kind& Reachable(Console& console, Words& words, const char* kind_word) {
  const std::string name = words.Next(kind_word);
  Control& control = console.names.FindControl(name);
  auto* const wanted = dynamic_cast<Kind*>(&control);
  if (wanted == nullptr) throw Refusal{name + " is not " + kind_word};
  CheckReach(control);
  return *wanted;
}

void Type(Console& console, Words& words) {
  TextBox& box = Reachable<TextBox>(console, words, "a text box");
  box.Type(words.Rest());
}

void Choose(Console& console, Words& words) {
  ComboBox& combo = Reachable<ComboBox>(console, words, "a combo box");
  const std::string_view item = words.Rest();
  const auto& items = combo.Items();
  if (std::find(items.begin(), items.end(), item) == items.end()) {
    throw Refusal{combo.FullName() + " has no item " + std::string(item)};
  }
  combo.SetText(item);
}

void BringToFront(Console& console, Words& words) {
  TabStrip& strip = Reachable<TabStrip>(console, words, "a tab strip");
  const std::string_view tab = words.Rest();
  const auto& tabs = strip.Tabs();
  const auto found = std::find(tabs.begin(), tabs.end(), tab);
  if (found == tabs.end()) throw Refusal{strip.FullName() + " has no tab " + std::string(tab)};
  strip.SetFront(static_cast<int>(found - tabs.begin()));
}

// What the close button of a window does.
void Close(Console& console, Words& words) {
  const std::string name = words.Next("a screen");
  words.ExpectEnd();
  Screen* const screen = console.names.Find(name).screen;
  if (screen == nullptr) throw Refusal{name + " is no screen"};
  if (!screen->Visible()) throw Refusal{name + " is hidden"};
  if (screen->on_close() == Screen::OnClose::kHides) screen->Hide();
  if (screen->on_close() == Screen::OnClose::kEndsProgram) console.front_end.EndProgram();
}

constexpr std::array<Command, 9> kCommands = {{
    {"press", "CAPTION", "presses what bears CAPTION on a visible screen, the front one first",
     Press},
    {"click", "NAME", "presses a button, or clicks a label or picture", Click},
    {"select", "LIST INDEX", "clicks an item, counted from 0; -1 selects none", Select},
    {"dblclick", "LIST INDEX", "double clicks an item, counted from 0", DoubleClick},
    {"type", "TEXTBOX TEXT", "replaces the text, cut at the limit of the box", Type},
    {"choose", "COMBO TEXT", "chooses an item of a combo box", Choose},
    {"tab", "TABSTRIP TEXT", "brings a tab to the front", BringToFront},
    {"close", "SCREEN", "does what the close button of a window does", Close},
    {"force", "NAME", "like click, also where no person gets to it", Force},
}};

}  // namespace

std::span<const Command> ActionCommands() { return kCommands; }

}  // namespace frostmark
