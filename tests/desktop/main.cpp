#include <gtest/gtest.h>

#include <QApplication>

#include "desktop/style.h"
#include "tests/desktop/window_game.h"

// The application that all window tests of a run share.
int main(int argc, char** argv) {
  testing::InitGoogleTest(&argc, argv);
  if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication application(argc, argv);
  QApplication::setApplicationName("Frostmark");
  frostmark::test::KeepPreferencesApart();
  frostmark::DressApplication();
  return RUN_ALL_TESTS();
}
