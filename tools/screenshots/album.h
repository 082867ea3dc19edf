#pragma once

#include <QTemporaryDir>
#include <chrono>
#include <cstdint>
#include <functional>
#include <memory>
#include <string>

#include "desktop/qt_desktop.h"
#include "program/program.h"
#include "records/dice.h"

namespace frostmark {

// Dice that fall the same way at every start, so that pictures change only when the looks do.
class FixedDice : public Dice {
 public:
  int Roll(int n) override;

 private:
  std::uint64_t state_ = 20;
};

// A desktop on which every question is answered with Yes before anybody sees it, and on which the
// time that the game waits for has passed at once.
class WillingDesktop : public QtDesktop {
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
  WillingDesktop& desktop() { return desktop_; }

  // Saves the window of SCREEN as OUT/NAME.png.
  void Take(const Screen& screen, const QString& name);

  // Lets TIMER tick until it is disabled, at most TIMES times.
  static void Run(Timer& timer, int times);

 private:
  void LayOutFolders();

  QString out_;
  QTemporaryDir folder_;
  WillingDesktop desktop_;
  FixedDice dice_;
  std::unique_ptr<Program> program_;
};

// Each plays a part of the game and takes its pictures, in this order.
void TakeStartAndMatch(Album& album);
void TakeFranchise(Album& album);

}  // namespace frostmark
