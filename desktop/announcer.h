#pragma once

#include <QWidget>

namespace frostmark {

class ScreenForm;

// Tells a screen reader what has just happened, without taking the focus. It is never seen.
class Announcer : public QWidget {
  Q_OBJECT

 public:
  using QWidget::QWidget;

  void Say(const QString& text);
};

// Announces TEXT on FORM.
void Announce(ScreenForm& form, const QString& text);

}  // namespace frostmark
