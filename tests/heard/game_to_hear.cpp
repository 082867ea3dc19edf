#include <QApplication>
#include <QTemporaryDir>
#include <chrono>
#include <cstdio>

#include "desktop/style.h"
#include "desktop/ticker.h"
#include "tests/desktop/window_game.h"

// The whole game in a new world, for a listener: it waits for nobody but the user, and a watched
// game is over in seconds. Ends with the game's own exit code.
int main(int argc, char** argv) {
  using frostmark::DressApplication;
  using frostmark::FittingZoom;
  using frostmark::Game;
  using frostmark::Guard;
  using frostmark::Ticker;
  namespace test = frostmark::test;
  constexpr std::chrono::milliseconds kStep(5);

  QApplication application(argc, argv);
  QApplication::setApplicationName("Frostmark");
  test::KeepPreferencesApart();
  DressApplication(FittingZoom());

  test::WindowGame game;
  Guard& guard = game.front_end().guard();
  Game& match = game.program().game;
  const Ticker first(match.Timer1, guard, kStep);
  const Ticker second(match.Timer2, guard, kStep);
  const Ticker third(match.Timer3, guard, kStep);

  game.Start();
  while (game.front_end().ExitCode() < 0) {
    QApplication::processEvents(QEventLoop::AllEvents | QEventLoop::WaitForMoreEvents);
  }
  return game.front_end().ExitCode();
}
