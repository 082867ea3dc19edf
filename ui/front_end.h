#pragma once

#include <string>

#include "records/ui_queue.h"
#include "ui/screen.h"

namespace frostmark {

enum class BoxIcon { kStop, kInformation, kQuestion, kNone };
enum class BoxButtons { kOk, kYesNo };
enum class Answer { kOk, kYes, kNo };

// A question or a message that holds up everything until it is answered.
struct MessageBox {
  BoxIcon icon;
  BoxButtons buttons;
  std::string text;  // "\n" is a line break
};

// Thrown to leave the program at its end, from any depth, by a front end that does not leave the
// process there and then. No std::exception, so that nobody takes it for a failure.
struct ProgramEnded {};

// All that the game asks of the world outside its screens. A front end implements it.
class FrontEnd : public UiQueue {
 public:
  // Called once, when all screens stand and before one is shown: the front end sets its observers.
  virtual void Open(ScreenList& screens) = 0;

  // Shows BOX and waits for the answer: kOk, or kYes or kNo. A box that is closed without a choice
  // is answered kNo where that is possible.
  virtual Answer ShowBox(const MessageBox& box) = 0;

  // Asks for a line of text. A cancelled box gives the empty text.
  virtual std::string AskText(const std::string& prompt) = 0;

  // Opens ADDRESS in the user's web browser.
  virtual void OpenWebPage(const std::string& address) = 0;

  // Ends the program at once, whatever is on the stack. Does not return: it leaves the process or
  // throws ProgramEnded, which only the front end catches.
  [[noreturn]] virtual void EndProgram() = 0;
};

}  // namespace frostmark
