#include <QApplication>

#include "desktop/style.h"
#include "tools/screenshots/album.h"

// Plays a short game in a folder of its own and saves a picture of every screen into the folder
// that is named on the command line.
int main(int argc, char** argv) {
  QApplication application(argc, argv);
  if (application.arguments().size() != 2) {
    qCritical("usage: frostmark-screenshots FOLDER");
    return 2;
  }
  frostmark::DressApplication();
  frostmark::Album album(application.arguments().at(1));
  frostmark::TakeStartAndMatch(album);
  frostmark::TakeFranchise(album);
  return 0;
}
