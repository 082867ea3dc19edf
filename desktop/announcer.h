#pragma once

#include <QWidget>
#include <array>

namespace frostmark {

class ScreenForm;

// One announcement to a screen reader. It is never seen.
class Announcement : public QWidget {
  Q_OBJECT

 public:
  using QWidget::QWidget;

  void Say(const QString& text);
};

// Tells a screen reader what has just happened, without taking the focus.
class Announcer : public QObject {
  Q_OBJECT

 public:
  explicit Announcer(ScreenForm& form);

  void Say(const QString& text);

 private:
  // A reader asks for the text when it hears that one has come, by which time the game may be
  // further on: so a text is only taken back after this many newer ones.
  static constexpr std::size_t kKept = 16;

  std::array<Announcement*, kKept> kept_;
  std::size_t next_ = 0;
};

// Announces TEXT on FORM.
void Announce(ScreenForm& form, const QString& text);

}  // namespace frostmark
