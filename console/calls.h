#pragma once

#include <optional>
#include <string>

#include "console/console.h"
#include "console/words.h"

namespace frostmark {

// The arguments of a procedure that is called by its name, taken one after the other. Each throws
// Refusal when its word is missing or of the wrong kind.
class Arguments {
 public:
  Arguments(Console& console, Words& words) : console_(console), words_(words) {}

  Program& program() { return console_.program; }
  std::string Text() { return words_.Next("an argument"); }
  int Number();  // a 16-bit one
  bool Boolean();
  RecordList& List() { return console_.names.FindList(Text()); }
  std::string& TextVariable();
  // A path as it stands; relative to the program's folder unless it begins at the root.
  std::string Path();
  void ExpectEnd() { words_.ExpectEnd(); }

 private:
  Console& console_;
  Words& words_;
};

// A procedure of the game that can be called by its name. Its result, if it has one, is printed.
using Procedure = std::optional<std::string> (*)(Arguments& arguments);

// call_table.cpp: the procedure called NAME, or nullptr.
Procedure FindProcedure(const std::string& name);

// The command "call": calls the procedure named next and prints "= RESULT".
void Call(Console& console, Words& words);

}  // namespace frostmark
