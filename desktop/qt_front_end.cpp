#include "desktop/qt_front_end.h"

#include <QApplication>
#include <QDesktopServices>
#include <QPointer>
#include <QTime>
#include <QTimer>
#include <QUrl>
#include <algorithm>
#include <cstdio>
#include <cstdlib>

#include "desktop/access.h"
#include "desktop/boxes.h"
#include "desktop/preferences.h"
#include "desktop/screen_window.h"
#include "desktop/style.h"
#include "desktop/ticker.h"
#include "ui/controls.h"

namespace frostmark {
namespace {

// A yield must cost next to nothing, but reading the clock costs as much as all the rest of it, and
// asking the toolkit a hundred times more. So only every so many yields look at the clock, and the
// toolkit is asked no more often than a person can notice.
constexpr int kYieldsPerClockReading = 16;
constexpr std::chrono::milliseconds kBetweenEvents{8};

}  // namespace

QtFrontEnd::QtFrontEnd(std::function<void(int code)> leave)
    : leave_(std::move(leave)), guard_([this](const std::string& text) { EndByError(text); }) {
  // A closed message box would count as the last window while all screens are hidden.
  QApplication::setQuitOnLastWindowClosed(false);
  InstallAccess();
}

QtFrontEnd::~QtFrontEnd() = default;

void QtFrontEnd::Open(ScreenList& screens) {
  screens_ = &screens;
  for (Screen* screen : screens.All()) {
    screen->SetObserver(this);
    for (Control* control : screen->Controls()) {
      if (control->Kind() != ControlKind::kTimer) continue;
      auto& timer = static_cast<Timer&>(*control);
      const std::chrono::milliseconds interval(timer.IntervalMs());
      tickers_.push_back(std::make_unique<Ticker>(timer, guard_, interval));
    }
  }
}

void QtFrontEnd::Yield() {
  if (yields_left_-- > 0) return;
  yields_left_ = kYieldsPerClockReading - 1;
  if (std::chrono::steady_clock::now() < next_events_) return;
  LetEventsRun();
}

void QtFrontEnd::LetEventsRun() {
  QCoreApplication::processEvents(QEventLoop::AllEvents);
  next_events_ = std::chrono::steady_clock::now() + kBetweenEvents;
  StopIfEnded();
}

void QtFrontEnd::Wait() {
  QCoreApplication::processEvents(QEventLoop::AllEvents | QEventLoop::WaitForMoreEvents);
  StopIfEnded();
}

void QtFrontEnd::WaitFor(std::chrono::microseconds at_most) {
  if (at_most <= std::chrono::microseconds::zero()) {
    LetEventsRun();
    return;
  }
  QTimer alarm;
  alarm.setTimerType(Qt::PreciseTimer);
  alarm.setSingleShot(true);
  alarm.start(std::chrono::ceil<std::chrono::milliseconds>(at_most));
  Wait();
}

void QtFrontEnd::StopIfEnded() const {
  if (guard_.Ended()) throw ProgramEnded{};
}

QWidget* QtFrontEnd::FrontWindow() const {
  const std::vector<Screen*> visible = screens_->VisibleOnes();
  for (auto screen = visible.rbegin(); screen != visible.rend(); ++screen) {
    if (!(*screen)->Minimized()) return Window(**screen);
  }
  return nullptr;
}

void QtFrontEnd::ComeToFront() {
  QWidget* front = QApplication::activeModalWidget();
  if (front == nullptr) front = FrontWindow();
  if (front == nullptr && !screens_->VisibleOnes().empty()) {
    front = Window(*screens_->VisibleOnes().back());
  }
  if (front == nullptr) return;
  front->setWindowState(front->windowState() & ~Qt::WindowMinimized);
  front->raise();
  front->activateWindow();
}

Answer QtFrontEnd::ShowBox(const MessageBox& box) {
  const Answer answer = ShowMessageBox(box, FrontWindow());
  StopIfEnded();
  return answer;
}

std::string QtFrontEnd::AskText(const std::string& prompt) {
  std::string text = AskForText(prompt, FrontWindow());
  StopIfEnded();
  return text;
}

void QtFrontEnd::OpenWebPage(const std::string& address) {
  QDesktopServices::openUrl(QUrl(QString::fromStdString(address)));
}

std::chrono::microseconds QtFrontEnd::SinceMidnight() {
  return std::chrono::milliseconds(QTime::currentTime().msecsSinceStartOfDay());
}

void QtFrontEnd::EndProgram() {
  guard_.SetEnded();
  if (const auto center = stage_.MovedTo()) preferences::SetCenter(*center);
  for (QWidget* window : QApplication::topLevelWidgets()) window->hide();
  leave_(EXIT_SUCCESS);
  throw ProgramEnded{};
}

void QtFrontEnd::EndByError(const std::string& text) {
  ShowMessageBox({BoxIcon::kStop, BoxButtons::kOk, text},
                 screens_ == nullptr ? nullptr : FrontWindow());
  for (QWidget* window : QApplication::topLevelWidgets()) window->hide();
  leave_(EXIT_FAILURE);
}

void QtFrontEnd::LeaveProcess(int code) {
  // The event loops and the game's procedures on the stack are left as they are: nothing may go on
  // after the end, and no file is open outside a single operation.
  std::fflush(nullptr);
  std::_Exit(code);
}

void QtFrontEnd::ScreenChanged(Screen& screen) {
  auto window = windows_.find(&screen);
  if (window == windows_.end()) {
    if (!screen.Visible()) return;
    auto made = std::make_unique<ScreenWindow>(screen, guard_, stage_, [this] { EndProgram(); });
    QObject::connect(made.get(), &ScreenWindow::ZoomWanted, made.get(),
                     [this](int steps) { ChangeZoom(steps); });
    QObject::connect(made.get(), &ScreenWindow::FullScreenWanted, made.get(),
                     [this] { ToggleFullScreen(); });
    window = windows_.emplace(&screen, std::move(made)).first;
  }
  window->second->Follow(screen.IsPopup() ? OpenerOf(screen) : nullptr);
}

void QtFrontEnd::TakePreferences() {
  if (const auto center = preferences::Center()) stage_.BeginAround(*center);
  stage_.full_screen = preferences::FullScreen();
  Dress();
}

void QtFrontEnd::ChangeZoom(int steps) {
  constexpr double kStep = 0.1;
  constexpr double kLeast = 0.5;
  if (stage_.full_screen) return;  // everything is as large as it gets
  const double wanted = steps == 0 ? 1 : std::max(Zoom() + steps * kStep, kLeast);
  preferences::SetZoom(FittingZoom(wanted));
  Dress();
}

void QtFrontEnd::ToggleFullScreen() {
  stage_.full_screen = !stage_.full_screen;
  preferences::SetFullScreen(stage_.full_screen);
  Dress();
}

// The letters grow with a window over the whole desktop, so that its pages stay what they are.
void QtFrontEnd::Dress() {
  constexpr double kAsLargeAsItGets = 100;
  const double zoom = FittingZoom(stage_.full_screen ? kAsLargeAsItGets : preferences::Zoom());
  if (zoom != Zoom()) DressApplication(zoom);
  RefitWindows();
}

// From the back to the front: each asks for the keyboard as it comes, and the screen in front,
// above which the desk of a watched game must not rise, has it last.
void QtFrontEnd::RefitWindows() {
  const QPointer<QWidget> active = QApplication::activeWindow();
  for (const auto& [screen, window] : windows_) {
    if (!screen->Visible()) window->Refit();
  }
  if (screens_ == nullptr) return;
  for (const bool popups : {false, true}) {
    for (const Screen* screen : screens_->VisibleOnes()) {
      ScreenWindow* window = Window(*screen);
      if (window != nullptr && screen->IsPopup() == popups) window->Refit();
    }
  }
  if (active != nullptr) active->activateWindow();
}

QWidget* QtFrontEnd::OpenerOf(const Screen& popup) const {
  const std::vector<Screen*> visible = screens_->VisibleOnes();
  for (auto screen = visible.rbegin(); screen != visible.rend(); ++screen) {
    if (*screen != &popup && !(*screen)->IsPopup()) return Window(**screen);
  }
  return nullptr;
}

void QtFrontEnd::DragRequested(Screen& screen) {
  if (ScreenWindow* window = Window(screen)) window->StartDrag();
}

ScreenWindow* QtFrontEnd::Window(const Screen& screen) const {
  const auto window = windows_.find(&screen);
  return window == windows_.end() ? nullptr : window->second.get();
}

}  // namespace frostmark
