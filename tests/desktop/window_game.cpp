#include "tests/desktop/window_game.h"

#include <QApplication>
#include <QSettings>
#include <QTemporaryDir>

#include "tests/desktop/person.h"

namespace frostmark::test {

int RepeatableDice::Roll(int n) {
  state_ = state_ * 6364136223846793005ULL + 1442695040888963407ULL;
  return n < 1 ? 1 : static_cast<int>((state_ >> 33U) % static_cast<unsigned int>(n)) + 1;
}

QuickFrontEnd::QuickFrontEnd() : QtFrontEnd([this](int code) { exit_code_ = code; }) {}

void QuickFrontEnd::Yield() {
  if (at_yield) at_yield();
  QtFrontEnd::Yield();
}

void QuickFrontEnd::WaitFor(std::chrono::microseconds at_most) {
  now_ += at_most;
  QtFrontEnd::WaitFor(std::chrono::microseconds::zero());
}

void KeepPreferencesApart() {
  static const QTemporaryDir folder;
  QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, folder.path());
}

WindowGame::WindowGame() : program_(std::make_unique<Program>(front_end_, dice_, world_.path())) {}

void WindowGame::Start() {
  front_end_.guard().Call([this] { program_->Start(); });
}

void WindowGame::StartFranchise() {
  Person person(front_end_);
  person.AnswerBox(Qt::Key_Return);  // a new world takes a while
  person.AnswerBox(Qt::Key_Return);  // the file is saved
  front_end_.guard().Call([this] {
    program_->startup.PressNew();
    program_->startup.PressGenerate();
    program_->startup.PressBegin();
  });
}

ScreenWindow& WindowGame::Window(const Screen& screen) const {
  ScreenWindow* window = front_end_.Window(screen);
  if (window == nullptr) qFatal("%s has never been shown", screen.Name().c_str());
  return *window;
}

}  // namespace frostmark::test
