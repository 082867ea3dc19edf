#pragma once

#include <QElapsedTimer>
#include <QObject>
#include <QString>
#include <deque>
#include <functional>

class QListView;
class QWidget;

namespace frostmark::test {

class QuickFrontEnd;

// Somebody at the mouse and the keyboard. What is to be done while the game is deep in a procedure
// of its own (answering its boxes, playing its match, choosing in the draft) is told beforehand:
// one thing after the other, each as soon as it can be done.
class Person {
 public:
  // Ends the program on DESKTOP when nothing gets done for seconds, so that a procedure
  // that waits for it does not wait for ever.
  explicit Person(QuickFrontEnd& front_end);
  // Everything told must have been done by then.
  ~Person();
  Person(const Person&) = delete;
  Person& operator=(const Person&) = delete;

  // Does DEED as soon as READY, after all that was told before. WHAT is for the message when it
  // never happens.
  void When(const QString& what, std::function<bool()> ready, std::function<void()> deed);

  // Answers the next box with KEY, after typing TEXT into it.
  void AnswerBox(Qt::Key key, const QString& text = {});
  // Clicks the button with CAPTION (without its mark for the Alt key) on the next box.
  void ClickInBox(const QString& caption, const QString& text = {});

  bool Done() const { return deeds_.empty(); }

  // Whether WINDOW is the one that keys go to. Where there is no keyboard it is enough that it is
  // to be seen.
  static bool HasBefore(const QWidget& window);
  // The widget that keys go to now.
  static QWidget* Focus();
  static void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
  // Presses Tab until the widget called NAME has the focus. False when it never gets it.
  static bool TabTo(const QString& name);
  // Goes to the widget called NAME by Tab and presses it.
  static bool TabAndPress(const QString& name, Qt::Key key = Qt::Key_Return);

  static void Click(QWidget& widget);
  static void ClickRow(QListView& list, int row);
  static void DoubleClickRow(QListView& list, int row);

 private:
  struct Deed {
    QString what;
    std::function<bool()> ready;
    std::function<void()> deed;
  };

  void LookAroundSoon();
  void LookAround();
  void GiveUp();

  std::deque<Deed> deeds_;
  QuickFrontEnd& front_end_;
  QElapsedTimer patience_;
  int rounds_without_window_ = 0;
  QObject here_;
};

// Lets the windows draw and settle.
void Settle();

}  // namespace frostmark::test
