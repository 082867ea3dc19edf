#include <gtest/gtest.h>

#include <QApplication>
#include <QFont>
#include <cstdio>
#include <cstdlib>

#include "desktop/style.h"
#include "tests/desktop/window_game.h"
#include "tests/windows/x_server.h"

// One X server for all tests of the run, as large as FROSTMARK_TEST_SCREEN says, for a user
// whose font has FROSTMARK_TEST_FONT points. Without the
// programs for it the run is skipped, which CTest knows by the exit code.
int main(int argc, char** argv) {
  constexpr int kSkipped = 77;
  testing::InitGoogleTest(&argc, argv);
  if (!frostmark::test::XServer::Available()) {
    std::printf("skipped: Xvfb and openbox are not both installed\n");
    return kSkipped;
  }
  const char* screen = std::getenv("FROSTMARK_TEST_SCREEN");
  const frostmark::test::XServer server(screen == nullptr ? "1920x1080x24" : screen);
  qputenv("QT_QPA_PLATFORM", "xcb");
  QApplication application(argc, argv);
  QApplication::setApplicationName("Frostmark");
  frostmark::test::KeepPreferencesApart();
  if (const char* points = std::getenv("FROSTMARK_TEST_FONT")) {
    QFont users = QApplication::font();
    users.setPointSizeF(std::atof(points));
    QApplication::setFont(users);
  }
  frostmark::DressApplication(frostmark::FittingZoom());
  return RUN_ALL_TESTS();
}
