// Time, answers, rolls, lists and variables, procedures by name, and the console itself.
#include <array>
#include <cmath>
#include <vector>

#include "console/calls.h"
#include "console/commands.h"
#include "console/console.h"
#include "console/refusal.h"
#include "records/numbers.h"

namespace frostmark {
namespace {

constexpr double kLongestWait = 1e9;  // seconds

void Wait(Console& console, Words& words) {
  const std::string text = words.Next("a number of seconds");
  words.ExpectEnd();
  const double seconds = LenientNumber(text);
  if (!IsNumeric(text) || seconds < 0 || seconds > kLongestWait) {
    throw Refusal{"no time to wait: " + text};
  }
  console.front_end.LetTimePass(ConsoleFrontEnd::Time(std::llround(seconds * 1e6)));
}

std::function<bool()> StateCondition(const Named& named, const std::string& word) {
  const bool about_visible = word == "visible" || word == "hidden";
  const bool wanted = word == "visible" || word == "enabled";
  if (const Screen* screen = named.screen; screen != nullptr && about_visible) {
    return [screen, wanted] { return screen->Visible() == wanted; };
  }
  const Control* const control = named.control;
  if (control == nullptr) throw Refusal{"it is never " + word};
  if (about_visible) return [control, wanted] { return control->Visible() == wanted; };
  return [control, wanted] { return control->Enabled() == wanted; };
}

void Until(Console& console, Words& words) {
  const std::string name = words.Next("a name");
  const Named named = console.names.Find(name);
  const std::string word = words.Next("a condition");
  if (word == "=") {
    std::string text(words.Rest());
    if (!TextOf(named)) throw Refusal{name + " has no text"};
    const std::string what = name + " = " + text;
    console.front_end.LetTimePassUntil(
        [named, text = std::move(text)] { return TextOf(named) == text; }, what);
    return;
  }
  words.ExpectEnd();
  if (word != "visible" && word != "hidden" && word != "enabled" && word != "disabled") {
    throw Refusal{word + " is no condition"};
  }
  console.front_end.LetTimePassUntil(StateCondition(named, word), name + " " + word);
}

void QueueAnswer(Console& console, Words& words) {
  console.front_end.QueueAnswer(std::string(words.Rest()));
}

void ForgetAnswers(Console& console, Words& words) {
  if (words.Next("none") != "none") throw Refusal{"answers knows only none"};
  words.ExpectEnd();
  console.front_end.ForgetAnswers();
}

void QueueRolls(Console& console, Words& words) {
  std::vector<int> results;
  do {
    results.push_back(words.NextNumber("a roll"));
  } while (!words.AtEnd());
  for (const int result : results) console.dice.Queue(result);
}

void Trace(Console& console, Words& words) {
  const std::string what = words.Next("rolls");
  const std::string state = words.Next("on or off");
  words.ExpectEnd();
  if (what != "rolls" || (state != "on" && state != "off")) {
    throw Refusal{"trace knows only rolls on and rolls off"};
  }
  console.dice.Trace(state == "on");
}

void Set(Console& console, Words& words) {
  const std::string name = words.Next("a name");
  const Named named = console.names.Find(name);
  if (named.variable) return SetVariable(*named.variable, words.Rest());
  CaptionedControl* const control =
      named.control == nullptr ? nullptr : AsCaptioned(*named.control);
  if (control == nullptr) throw Refusal{name + " has no text to set"};
  control->SetCaption(words.Rest());
}

void Add(Console& console, Words& words) {
  RecordList& list = console.names.FindList(words.Next("a list"));
  list.AddItem(words.Rest());
}

void Put(Console& console, Words& words) {
  const std::string name = words.Next("a list");
  RecordList& list = console.names.FindList(name);
  const int index = words.NextNumber("the index");
  if (index < 0 || index >= list.ListCount()) {
    throw Refusal{name + " has no item " + std::to_string(index)};
  }
  list.SetList(index, words.Rest());
}

void Clear(Console& console, Words& words) {
  RecordList& list = console.names.FindList(words.Next("a list"));
  words.ExpectEnd();
  list.Clear();
}

void Soon(Console& console, Words& words) {
  if (words.AtEnd()) throw Refusal{"a command is missing"};
  console.front_end.RunAtYield(words.Rest());
}

void Exit(Console& /*console*/, Words& words) {
  words.ExpectEnd();
  throw ConsoleEnded();
}

constexpr std::array<Command, 13> kCommands = {{
    {"wait", "SECONDS", "lets time pass", Wait},
    {"until", "NAME visible|hidden|enabled|disabled|= TEXT", "lets time pass until it is so",
     Until},
    {"answer", "TEXT", "queues an answer for the next box: yes, no, ok, a text, cancel",
     QueueAnswer},
    {"answers", "none", "forgets the queued answers", ForgetAnswers},
    {"rolls", "N...", "gives the next results of the dice", QueueRolls},
    {"trace", "rolls on|off", "prints every roll, or no longer", Trace},
    {"set", "NAME TEXT", "sets a caption or a variable", Set},
    {"add", "LIST TEXT", "appends an item to a list", Add},
    {"put", "LIST INDEX TEXT", "replaces an item of a list", Put},
    {"clear", "LIST", "empties a list", Clear},
    {"call", "PROCEDURE ARGUMENT...", "calls a procedure of the game, prints = RESULT", Call},
    {"soon", "LINE", "runs LINE at the next yield of what comes next", Soon},
    {"exit", "", "ends the console at once", Exit},
}};

}  // namespace

std::span<const Command> SessionCommands() { return kCommands; }

}  // namespace frostmark
