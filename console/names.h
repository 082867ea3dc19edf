#pragma once

#include <functional>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "program/program.h"

namespace frostmark {

// A variable of a module or a screen.
using Variable = std::variant<Int16*, std::string*, bool*>;

std::string VariableText(const Variable& variable);
// Throws Refusal when TEXT does not fit the kind of the variable.
void SetVariable(const Variable& variable, std::string_view text);

// What a name in a command stands for: exactly one of these is set.
struct Named {
  Screen* screen = nullptr;
  Control* control = nullptr;
  RecordList* scratch = nullptr;
  std::optional<Variable> variable;
};

// Everything that a command can name: "Startup.HighButton4", "FDraft.List1(0)", a screen alone, a
// variable such as "Franchise.Score1", or a scratch list such as "%mine", which exists from its
// first use. The functions throw Refusal for a name of the wrong kind or of nothing.
class Names {
 public:
  explicit Names(Program& program);

  Named Find(const std::string& name);
  Control& FindControl(const std::string& name);
  RecordList& FindList(const std::string& name);
  const Variable& FindVariable(const std::string& name);
  // The names of all variables.
  std::vector<std::string> Variables() const;

 private:
  void AddVariables(Program& program);

  ScreenList& screens_;
  std::map<std::string, Variable, std::less<>> variables_;
  std::map<std::string, RecordList, std::less<>> scratch_;
};

// CONTROL as one of its kind, or nullptr when it is of another.
CaptionedControl* AsCaptioned(Control& control);
ListBox* AsList(Control& control);
// The handler of a click on a button, label or picture, or nullptr for other kinds.
const Handler* ClickHandler(Control& control);

// What a name reads as one text: caption, value, tab in front; nothing for what has no text.
std::optional<std::string> TextOf(const Named& named);

}  // namespace frostmark
