#pragma once

#include <QString>
#include <span>
#include <string>

namespace frostmark {

class Control;
class Screen;
class ScreenForm;

// What a person can do with a control, and the key that leads there.
struct KeyHint {
  const char* control;  // its full name: "Franchise.HighButton1"
  // "Alt+B". A strip of tabs has the key of its first tab, the others follow by their number. An
  // arrow or Enter works in the list beside the button; "" for what Tab alone leads to.
  const char* key;
  const char* words;
};

// Every control that can be pressed, chosen from or written into, screen by screen. Tooltips,
// screen readers, the help page and the keys themselves all go by this one table.
std::span<const KeyHint> KeyHints();

// The hint of CONTROL, or nullptr for one that is only read.
const KeyHint* HintOf(const Control& control);

// "Play the week (Alt+B)", as the tooltip says it and a screen reader beside the name. For what is
// only read the words it is called by.
QString TipOf(const Control& control);

// The letter of HINT's Alt key, or a null character.
QChar AltLetter(const KeyHint* hint);

// Makes the keys of SCREEN work in its window, whose widgets are on FORM.
void InstallKeys(const Screen& screen, ScreenForm& form);

}  // namespace frostmark
