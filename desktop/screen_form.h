#pragma once

#include <QWidget>

namespace frostmark {

class Binder;
class Guard;
class Screen;

// The content of a screen's window: the widgets of its Designer form, connected to the controls of
// the screen.
class ScreenForm : public QWidget {
  Q_OBJECT

 public:
  explicit ScreenForm(QWidget* parent = nullptr);

  // Says that a control has changed; Refreshed follows in the next turn of the event loop.
  void NoteChange();

 signals:
  // Controls of the screen, one or many, have changed since the last time.
  void Refreshed();

 private:
  bool refresh_due_ = false;
};

}  // namespace frostmark
