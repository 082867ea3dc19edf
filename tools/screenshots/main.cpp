#include <QApplication>

#include "desktop/style.h"
#include "tools/screenshots/album.h"

// Plays a short game in a folder of its own and saves a picture of every screen into the folder
// that is named on the command line, or, with --film before it, the pictures of a goal.
int main(int argc, char** argv) {
  QApplication application(argc, argv);
  QStringList arguments = application.arguments().mid(1);
  const bool film = arguments.removeAll("--film") > 0;
  if (arguments.size() != 1) {
    qCritical("usage: frostmark-screenshots [--film] FOLDER");
    return 2;
  }
  frostmark::DressApplication();
  frostmark::Album album(arguments.first());
  if (film) {
    frostmark::FilmGoal(album);
    return 0;
  }
  frostmark::TakeStartAndMatch(album);
  frostmark::TakeFranchise(album);
  return 0;
}
