#include <QApplication>
#include <QFile>
#include <QIcon>

#include "desktop/qt_desktop.h"
#include "desktop/style.h"
#include "records/dice.h"
#include "shell/program.h"

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  QApplication::setApplicationName("Frostmark");
  QApplication::setApplicationDisplayName("Frostmark");
  QApplication::setDesktopFileName("io.frostmark.frostmark");
  QIcon icon;
  for (const char* size : {":/icon-48.png", ":/icon-128.png"}) icon.addFile(size);
  QApplication::setWindowIcon(icon);
  frostmark::DressApplication();

  frostmark::QtDesktop desktop;
  frostmark::ClockDice dice;
  const QByteArray folder = QFile::encodeName(QApplication::applicationDirPath());
  frostmark::Program program(desktop, dice, folder.toStdString());
  desktop.guard().Call([&] { program.Start(); });
  return QApplication::exec();
}
