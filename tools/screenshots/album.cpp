#include "tools/screenshots/album.h"

#include <QApplication>
#include <QDir>
#include <QEventLoop>
#include <QTimer>

#include "desktop/screen_window.h"

namespace frostmark {

void WillingFrontEnd::Wait() {
  if (while_waiting) {
    while_waiting();
    QApplication::processEvents();
  } else {
    QtFrontEnd::Wait();
  }
}

void WillingFrontEnd::WaitFor(std::chrono::microseconds at_most) {
  now_ += at_most;
  if (while_waiting) while_waiting();
  QApplication::processEvents();
}

Answer WillingFrontEnd::ShowBox(const MessageBox& box) {
  return box.buttons == BoxButtons::kYesNo ? Answer::kYes : Answer::kOk;
}

std::string WillingFrontEnd::AskText(const std::string& /*prompt*/) { return {}; }

Album::Album(QString out) : out_(std::move(out)) {
  QDir().mkpath(out_);
  program_ = std::make_unique<Program>(front_end_, dice_, world_.path());
}

QImage Album::Picture(const Screen& screen) const {
  const ScreenWindow* window = front_end_.Window(screen);
  if (window == nullptr) qFatal("%s has never been shown", screen.Name().c_str());
  return const_cast<ScreenWindow*>(window)->grab().toImage();
}

void Album::Take(const Screen& screen, const QString& name) {
  // Layouts and lists settle over a few rounds.
  for (int i = 0; i < 5; ++i) QApplication::processEvents();
  const QString path = out_ + "/" + name + ".png";
  if (!Picture(screen).save(path)) qFatal("cannot write %s", qPrintable(path));
}

void Album::LetPass(std::chrono::milliseconds time) {
  QEventLoop loop;
  QTimer::singleShot(time, &loop, &QEventLoop::quit);
  loop.exec();
}

void Album::Run(Timer& timer, int times) {
  for (int i = 0; i < times && timer.Enabled(); ++i) timer.Tick();
}

}  // namespace frostmark
