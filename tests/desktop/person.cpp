#include "tests/desktop/person.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QDialog>
#include <QDialogButtonBox>
#include <QLineEdit>
#include <QListView>
#include <QPointer>
#include <QPushButton>
#include <QTimer>
#include <QtTest>

#include "tests/desktop/window_game.h"

namespace frostmark::test {

namespace {

constexpr int kMostTabs = 80;
constexpr int kRoundsUntilActivation = 20;
constexpr int kPatienceMs = 60000;  // only a failure waits for that long, the sanitizers nearly do

// The compositor of the tests has none, and the toolkit does not outlive a key pressed there.
bool KeyboardIsThere() { return QGuiApplication::platformName() != "wayland"; }

bool BoxIsUp() {
  const QWidget* box = QApplication::activeModalWidget();
  return box != nullptr && box->isVisible();
}

void TypeInto(QWidget& box, const QString& text) {
  if (text.isEmpty()) return;
  auto* edit = box.findChild<QLineEdit*>();
  ASSERT_NE(edit, nullptr) << "nothing to type into";
  if (KeyboardIsThere()) {
    QTest::keyClicks(edit, text);
  } else {
    edit->insert(text);
  }
}

QPushButton* ButtonCalled(const QWidget& box, const QString& caption) {
  for (QPushButton* button : box.findChildren<QPushButton*>()) {
    if (button->text().remove('&') == caption) return button;
  }
  return nullptr;
}

// The window that had the keyboard last, boxes apart.
QPointer<QWidget> last_window;

void NoteActiveWindow() {
  QWidget* window = QApplication::activeWindow();
  if (window != nullptr && !window->isModal()) last_window = window;
}

// What a window manager does when a box or window with the keyboard has gone: it gives it back to
// the one before, or to another. The offscreen platform has no window manager.
void ActivateSomeWindow() {
  if (QApplication::activeWindow() != nullptr || BoxIsUp()) return;
  QWidget* next = last_window;
  for (QWidget* window : QApplication::topLevelWidgets()) {
    if (next != nullptr && next->isVisible()) break;
    if (window->isVisible() && !window->isMinimized()) next = window;
  }
  if (next != nullptr && next->isVisible()) next->activateWindow();
}

}  // namespace

Person::Person(QuickFrontEnd& front_end) : front_end_(front_end) {
  patience_.start();
  LookAroundSoon();
}

Person::~Person() {
  while (!Done()) QTest::qWait(1);
}

void Person::GiveUp() {
  ADD_FAILURE() << "this never happened: " << deeds_.front().what.toStdString();
  deeds_.clear();
  front_end_.guard().Call([this] { front_end_.EndProgram(); });
}

void Person::When(const QString& what, std::function<bool()> ready, std::function<void()> deed) {
  deeds_.push_back({what, std::move(ready), std::move(deed)});
}

void Person::LookAroundSoon() {
  // Not one timer that repeats: it would stand still while a deed of its own waits for an answer.
  QTimer::singleShot(1, &here_, [this] { LookAround(); });
}

void Person::LookAround() {
  LookAroundSoon();
  NoteActiveWindow();
  // A window that is just being shown gets the keyboard by itself, a little later.
  rounds_without_window_ = QApplication::activeWindow() == nullptr ? rounds_without_window_ + 1 : 0;
  if (rounds_without_window_ > kRoundsUntilActivation) ActivateSomeWindow();
  if (deeds_.empty()) return;
  if (!deeds_.front().ready()) {
    if (patience_.elapsed() > kPatienceMs) GiveUp();
    return;
  }
  // Taken off first: the deed may run the event loop and so come back here.
  const Deed next = std::move(deeds_.front());
  deeds_.pop_front();
  patience_.restart();
  next.deed();
  patience_.restart();
}

void Person::AnswerBox(Qt::Key key, const QString& text) {
  When("a box to answer", BoxIsUp, [key, text] {
    QWidget* box = QApplication::activeModalWidget();
    TypeInto(*box, text);
    QTest::keyClick(box, key);
  });
}

void Person::ClickInBox(const QString& caption, const QString& text) {
  When("a box with " + caption, BoxIsUp, [caption, text] {
    QWidget* box = QApplication::activeModalWidget();
    TypeInto(*box, text);
    QPushButton* button = ButtonCalled(*box, caption);
    ASSERT_NE(button, nullptr) << caption.toStdString();
    QTest::mouseClick(button, Qt::LeftButton);
  });
}

bool Person::HasBefore(const QWidget& window) {
  return KeyboardIsThere() ? QApplication::activeWindow() == &window : window.isVisible();
}

QWidget* Person::Focus() {
  if (QApplication::activeWindow() == nullptr) Settle();
  if (QApplication::activeWindow() == nullptr) {
    ActivateSomeWindow();
    Settle();
  }
  if (QWidget* focus = QApplication::focusWidget()) return focus;
  QWidget* window = QApplication::activeWindow();
  return window != nullptr && window->focusWidget() != nullptr ? window->focusWidget() : window;
}

void Person::Press(Qt::Key key, Qt::KeyboardModifiers modifiers) {
  QWidget* focus = Focus();
  ASSERT_NE(focus, nullptr) << "no window has the keyboard";
  NoteActiveWindow();
  QTest::keyClick(focus, key, modifiers);
}

bool Person::TabTo(const QString& name) {
  for (int i = 0; i < kMostTabs; ++i) {
    const QWidget* focus = Focus();
    if (focus == nullptr) return false;
    if (focus->objectName() == name) return true;
    Press(Qt::Key_Tab);
  }
  return false;
}

bool Person::TabAndPress(const QString& name, Qt::Key key) {
  if (!TabTo(name)) return false;
  Press(key);
  return true;
}

void Person::Click(QWidget& widget) { QTest::mouseClick(&widget, Qt::LeftButton); }

void Person::ClickRow(QListView& list, int row) {
  const QModelIndex index = list.model()->index(row, 0);
  list.scrollTo(index);
  QTest::mouseClick(list.viewport(), Qt::LeftButton, Qt::NoModifier,
                    list.visualRect(index).center());
}

void Person::DoubleClickRow(QListView& list, int row) {
  // As the window system sends it: press and release, then the second press as a double click.
  ClickRow(list, row);
  const QModelIndex index = list.model()->index(row, 0);
  QTest::mouseDClick(list.viewport(), Qt::LeftButton, Qt::NoModifier,
                     list.visualRect(index).center());
}

void Settle() {
  for (int i = 0; i < 5; ++i) QApplication::processEvents();
}

}  // namespace frostmark::test
