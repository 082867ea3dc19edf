// What prints something and changes nothing.
#include <array>

#include "console/captions.h"
#include "console/commands.h"
#include "console/console.h"
#include "console/drawing.h"
#include "console/refusal.h"

namespace frostmark {
namespace {

void ShowList(Transcript& transcript, const std::string& name, const RecordList& list) {
  transcript.Line(name + ": " + std::to_string(list.ListCount()) + " items, selected " +
                  std::to_string(list.ListIndex()));
  for (int i = 0; i < list.ListCount(); ++i) {
    transcript.Line(std::to_string(i) + " " + list.List(i));
  }
}

void Show(Console& console, Words& words) {
  const std::string name = words.Next("a name");
  words.ExpectEnd();
  const Named named = console.names.Find(name);
  if (named.scratch != nullptr) {
    ShowList(console.transcript, name, *named.scratch);
  } else if (named.control != nullptr && AsList(*named.control) != nullptr) {
    ShowList(console.transcript, name, *AsList(*named.control));
  } else if (const auto text = TextOf(named)) {
    console.transcript.Line(name + ": " + *text);
  } else {
    throw Refusal{name + " has no text to show"};
  }
}

void State(Console& console, Words& words) {
  const std::string name = words.Next("a name");
  words.ExpectEnd();
  const Named named = console.names.Find(name);
  if (named.screen == nullptr && named.control == nullptr) {
    throw Refusal{name + " is no screen and no control"};
  }
  const bool visible = named.screen != nullptr ? named.screen->Visible() : named.control->Visible();
  const bool enabled = named.screen != nullptr || named.control->Enabled();
  console.transcript.Line(name + (visible ? ": visible" : ": hidden") +
                          (enabled ? " enabled" : " disabled"));
}

void Screens(Console& console, Words& words) {
  words.ExpectEnd();
  std::string line = "screens:";
  for (const Screen* screen : console.program.screens.VisibleOnes()) line += " " + screen->Name();
  console.transcript.Line(line);
}

void Draw(Console& console, Words& words) {
  words.ExpectEnd();
  for (const std::string& line : DrawScreens(console.program.screens, Page{})) {
    console.transcript.Line(line);
  }
}

void Stats(Console& console, Words& words) {
  words.ExpectEnd();
  const Ordvik::Counts& counts = console.program.ordvik.counts();
  console.transcript.Line("stats: rolls " + std::to_string(counts.rolls) + " yields " +
                          std::to_string(console.front_end.Yields()) + " waits " +
                          std::to_string(console.front_end.Waits()) + " reads " +
                          std::to_string(counts.file_reads) + " writes " +
                          std::to_string(counts.file_writes));
}

void Controls(Console& console, Words& words) {
  const std::string name = words.Next("a screen");
  words.ExpectEnd();
  const Screen* const screen = console.names.Find(name).screen;
  if (screen == nullptr) throw Refusal{name + " is no screen"};
  for (Control* control : screen->Controls()) {
    if (!control->NeverShown()) console.transcript.Line(Described(*control));
  }
}

void Help(Console& console, Words& words) {
  if (words.AtEnd()) {
    for (const Command* command : AllCommands()) console.transcript.Line(Explained(*command));
    return;
  }
  const std::string name = words.Next("a command");
  words.ExpectEnd();
  const Command* const command = FindCommand(name);
  if (command == nullptr) throw Refusal{name + " is no command"};
  console.transcript.Line(Explained(*command));
}

constexpr std::array<Command, 7> kCommands = {{
    {"show", "NAME", "prints a text, or a list with its items", Show},
    {"state", "NAME", "prints whether it is visible and enabled", State},
    {"controls", "SCREEN", "prints what is on a screen: kind, state, what it is called, text",
     Controls},
    {"screens", "", "prints the visible screens, in the order in which they were shown", Screens},
    {"draw", "", "draws the visible screens", Draw},
    {"stats", "", "prints rolls, yields, waits, and files read and written", Stats},
    {"help", "[COMMAND]", "explains a command, or all of them", Help},
}};

}  // namespace

std::span<const Command> QuestionCommands() { return kCommands; }

}  // namespace frostmark
