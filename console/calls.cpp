#include "console/calls.h"

#include "console/refusal.h"

namespace frostmark {

int Arguments::Number() {
  const int number = words_.NextNumber("the argument");
  if (number < -32768 || number > 32767) {
    throw Refusal{"the argument does not fit 16 bits: " + std::to_string(number)};
  }
  return number;
}

bool Arguments::Boolean() {
  const std::string word = Text();
  if (word != "True" && word != "False") throw Refusal{"not True or False: " + word};
  return word == "True";
}

std::string& Arguments::TextVariable() {
  const std::string name = Text();
  const Variable& variable = console_.names.FindVariable(name);
  if (auto* const* text = std::get_if<std::string*>(&variable)) return **text;
  throw Refusal{name + " holds no text"};
}

std::string Arguments::Path() {
  const std::string path = Text();
  return path.starts_with('/') ? path : program().ordvik.AppPath() + "/" + path;
}

void Call(Console& console, Words& words) {
  Procedure procedure = nullptr;
  {
    const std::string name = words.Next("a procedure");
    procedure = FindProcedure(name);
    if (procedure == nullptr) throw Refusal{"there is no procedure " + name};
  }
  Arguments arguments(console, words);
  const auto result = procedure(arguments);
  if (result) console.transcript.Line("= " + *result);
}

}  // namespace frostmark
