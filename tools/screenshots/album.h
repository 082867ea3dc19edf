#pragma once

#include <QImage>
#include <QString>
#include <chrono>
#include <functional>
#include <memory>
#include <string>

#include "desktop/qt_front_end.h"
#include "program/program.h"
#include "tests/support/seeded_dice.h"
#include "tests/support/temporary_world.h"

namespace frostmark {

// A desktop on which every question is answered with Yes before anybody sees it, and on which the
// time that the game waits for has passed at once.
class WillingFrontEnd : public QtFrontEnd {
 public:
  // What somebody does while the game waits, for the clock or for them.
  std::function<void()> while_waiting;

  void Wait() override;
  void WaitFor(std::chrono::microseconds at_most) override;
  std::chrono::microseconds SinceMidnight() override { return now_; }
  Answer ShowBox(const MessageBox& box) override;
  std::string AskText(const std::string& prompt) override;

 private:
  std::chrono::microseconds now_ = std::chrono::hours(12);
};

// A game in a folder of its own that is played for its pictures.
class Album {
 public:
  // OUT is the folder for the pictures.
  explicit Album(QString out);

  Program& program() { return *program_; }
  WillingFrontEnd& front_end() { return front_end_; }

  // Saves the window of SCREEN as OUT/NAME.png.
  void Take(const Screen& screen, const QString& name);

  // Lets the windows move for a while.
  static void LetPass(std::chrono::milliseconds time);

  // The window of SCREEN as it looks now.
  QImage Picture(const Screen& screen) const;
  // The folder for the pictures.
  const QString& out() const { return out_; }

  // Lets TIMER tick until it is disabled, at most TIMES times.
  static void Run(Timer& timer, int times);

 private:
  QString out_;
  test::TemporaryWorld world_;
  WillingFrontEnd front_end_;
  test::SeededDice dice_{20};  // a seed, so that pictures change only when the looks do
  std::unique_ptr<Program> program_;
};

// Each plays a part of the game and takes its pictures, in this order.
void TakeStartAndMatch(Album& album);
void TakeFranchise(Album& album);

// Plays a game up to its first goal and saves what the rink looks like around it, a picture every
// kFrame: "frame-000.png" and so on.
inline constexpr std::chrono::milliseconds kFrame{60};
void FilmGoal(Album& album);

}  // namespace frostmark
