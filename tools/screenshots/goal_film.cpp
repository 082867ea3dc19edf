#include <deque>

#include "tools/screenshots/album.h"

namespace frostmark {
namespace {

constexpr std::size_t kFramesBefore = 28;
constexpr std::size_t kFramesAfter = 34;

std::string Score(const Game& game) {
  return game.Goals(1).Caption() + "-" + game.Goals(2).Caption();
}

}  // namespace

void FilmGoal(Album& album) {
  Program& program = album.program();
  program.Start();
  program.startup.BuildLeague();
  program.startup.HighButton1.Click();
  FStartGame& choice = program.f_start_game;
  choice.List3.Select(5);
  choice.File1.Select(0);
  choice.List4.Select(5);
  choice.File2.Select(1);
  choice.HighButton1.Click();
  Game& game = program.game;
  game.XTab1.SetFront(1);
  game.HighButton1.Click();

  // In real time, as it is played.
  std::deque<QImage> film;
  const std::string before = Score(game);
  while (Score(game) == before && game.Timer1.Enabled()) {
    Album::LetPass(kFrame);
    film.push_back(album.Picture(game));
    if (film.size() > kFramesBefore) film.pop_front();
  }
  for (std::size_t frame = 0; frame < kFramesAfter; ++frame) {
    Album::LetPass(kFrame);
    film.push_back(album.Picture(game));
  }
  int number = 0;
  for (const QImage& frame : film) {
    const QString path =
        QStringLiteral("%1/frame-%2.png").arg(album.out()).arg(number++, 3, 10, QChar('0'));
    if (!frame.save(path)) qFatal("cannot write %s", qPrintable(path));
  }
}

}  // namespace frostmark
