// What reads other lines: files of commands, and blocks of them.
#include <array>

#include "console/commands.h"
#include "console/console.h"
#include "console/refusal.h"

namespace frostmark {
namespace {

void Include(Console& console, Words& words) {
  if (words.AtEnd()) throw Refusal{"a file is missing"};
  std::string path;
  if (words.Peek() == '"') {
    path = words.Next("a file");
    words.ExpectEnd();
  } else {
    path = words.Rest();
  }
  console.script.Include(path);
}

void Repeat(Console& console, Words& words) {
  const int count = words.NextNumber("the count");
  words.ExpectEnd();
  if (count < 0) throw Refusal{"nothing is repeated " + std::to_string(count) + " times"};
  console.script.Repeat(count);
}

void End(Console& /*console*/, Words& /*words*/) { throw Refusal{"end without repeat"}; }

constexpr std::array<Command, 3> kCommands = {{
    {"include", "FILE", "runs the commands of FILE, which lies beside the script", Include},
    {"repeat", "N", "runs the lines up to its end N times", Repeat},
    {"end", "", "ends what is repeated", End},
}};

}  // namespace

std::span<const Command> ScriptCommands() { return kCommands; }

}  // namespace frostmark
