#include <QApplication>
#include <QFile>
#include <QIcon>
#include <QSocketNotifier>
#include <optional>

#include "desktop/boxes.h"
#include "desktop/preferences.h"
#include "desktop/qt_front_end.h"
#include "desktop/style.h"
#include "program/program.h"
#include "records/dice.h"
#include "records/world_claim.h"

namespace {

constexpr int kWorldIsOpen = 2;

// The world is open elsewhere: in a window, which comes to the front, or in a console.
int LeaveItToTheOther(const frostmark::WorldClaim& claim) {
  if (claim.Knock()) return 0;
  frostmark::ShowMessageBox({frostmark::BoxIcon::kInformation, frostmark::BoxButtons::kOk,
                             "This world is open in a console."},
                            nullptr);
  return kWorldIsOpen;
}

}  // namespace

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  QApplication::setApplicationName("Frostmark");
  QApplication::setApplicationVersion(FROSTMARK_VERSION);
  QApplication::setApplicationDisplayName("Frostmark");
  QApplication::setDesktopFileName("io.frostmark.frostmark");
  QIcon icon;
  for (const char* size : {":/icon-48.png", ":/icon-128.png"}) icon.addFile(size);
  QApplication::setWindowIcon(icon);
  frostmark::DressApplication(frostmark::FittingZoom(frostmark::preferences::Zoom()));

  const QByteArray folder = QFile::encodeName(QApplication::applicationDirPath());
  const frostmark::WorldClaim claim(folder.toStdString(), frostmark::WorldClaim::Answers::kYes);
  if (claim.Taken()) return LeaveItToTheOther(claim);

  frostmark::QtFrontEnd front_end;
  front_end.TakePreferences();
  frostmark::ClockDice dice;
  frostmark::Program program(front_end, dice, folder.toStdString());
  std::optional<QSocketNotifier> knocks;
  if (claim.Door() >= 0) {
    knocks.emplace(claim.Door(), QSocketNotifier::Read);
    QObject::connect(&*knocks, &QSocketNotifier::activated, &application, [&] {
      claim.TakeKnocks();
      front_end.ComeToFront();
    });
  }
  front_end.guard().Call([&] { program.Start(); });
  return QApplication::exec();
}
