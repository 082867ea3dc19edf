#include <gtest/gtest.h>

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

#include "desktop/boxes.h"
#include "tests/windows/x_display.h"

namespace frostmark::test {
namespace {

// A world in which somebody plays in a console, and another person who starts the desktop there.
class TakenWorld : public testing::Test {
 protected:
  void Start(QProcess& process, const char* variable, const QString& name) {
    const QString program = folder_.filePath(name);
    ASSERT_TRUE(QFile::copy(qEnvironmentVariable(variable), program));
    process.start(program, {});
  }

  // The one window on the screen, when it has the keyboard.
  XWindow TheWindow() {
    XWindow window;
    const bool there = QTest::qWaitFor(
        [&] {
          const auto windows = x_.Windows();
          if (windows.size() == 1) window = windows.front();
          return windows.size() == 1 && window.mapped && x_.Active() == window.id;
        },
        20000);
    EXPECT_TRUE(there) << x_.Described();
    return window;
  }

  // What WINDOW shows, as soon as it shows WANTED or, when it never does, in the end.
  bool Shows(const XWindow& window, const QImage& wanted) {
    return QTest::qWaitFor([&] { return x_.Picture(window.place) == wanted; });
  }

  QTemporaryDir folder_;
  QProcess console_;
  QProcess front_end_;
  XDisplay x_;
};

TEST_F(TakenWorld, TheDesktopSaysThatAConsoleHasItAndLeaves) {
  Start(console_, "FROSTMARK_TEST_CONSOLE", "frostmark-console");
  console_.write("screens\n");
  ASSERT_TRUE(console_.waitForReadyRead()) << "the console is ready";
  Start(front_end_, "FROSTMARK_TEST_DESKTOP", "frostmark");
  const XWindow box = TheWindow();
  EXPECT_EQ(box.title, "Frostmark");

  // It looks as a box with this text does.
  QImage wanted;
  {
    QApplication::setApplicationDisplayName("Frostmark");
    SignedBox same(BoxIcon::kInformation, "This world is open in a console.", nullptr);
    same.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&same));
    wanted = same.grab().toImage().convertToFormat(QImage::Format_RGB32);
  }
  x_.Activate(box.id);
  EXPECT_EQ(TheWindow().id, box.id);
  EXPECT_TRUE(Shows(box, wanted));

  x_.Key("Return");
  ASSERT_TRUE(front_end_.waitForFinished());
  EXPECT_EQ(front_end_.exitStatus(), QProcess::NormalExit);
  EXPECT_EQ(front_end_.exitCode(), 2);
  // It has left nothing in the world.
  EXPECT_EQ(QDir(folder_.path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot).join(' '),
            "frostmark frostmark-console");
  console_.closeWriteChannel();
  EXPECT_TRUE(console_.waitForFinished());
}

}  // namespace
}  // namespace frostmark::test
