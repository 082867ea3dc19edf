#pragma once

#include <QObject>
#include <QPointer>

class QWidget;

namespace frostmark {

class ScreenForm;

// Leads the keyboard over one screen. It begins at what the screen is about, which the form names
// in its property "primary", the most wanted first. Where a widget loses the keyboard because the
// game disables or hides it, the keyboard goes there again as soon as that can be used; where the
// user has gone somewhere on their own, it stays.
class FocusGuide : public QObject {
  Q_OBJECT

 public:
  explicit FocusGuide(ScreenForm& form);

  // The screen comes up.
  void Begin();

  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void NoteMove();
  void Follow();
  bool GoToPrimary();
  void GoToFirst();

  ScreenForm& form_;
  QPointer<QWidget> held_;  // who has the keyboard, as far as noticed
  bool adrift_ = false;     // it was taken from a widget and is not yet where it belongs
};

}  // namespace frostmark
