#include <QApplication>
#include <QFile>

#include "bench/startup/end_at_first_frame.h"
#include "desktop/qt_front_end.h"
#include "desktop/style.h"
#include "program/program.h"
#include "records/dice.h"

// The start of the desktop program, up to its first frame.
int main(int argc, char** argv) {
  const QApplication application(argc, argv);
  const frostmark::EndAtFirstFrame end;
  frostmark::DressApplication();
  frostmark::QtFrontEnd front_end;
  frostmark::ClockDice dice;
  const QByteArray folder = QFile::encodeName(QApplication::applicationDirPath());
  frostmark::Program program(front_end, dice, folder.toStdString());
  front_end.guard().Call([&] { program.Start(); });
  return QApplication::exec();
}
