#include <gtest/gtest.h>

#include <QApplication>
#include <QInputDialog>
#include <QLabel>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>
#include <QTimer>
#include <QtTest>
#include <chrono>

#include "records/runtime_error.h"
#include "tests/desktop/person.h"
#include "tests/desktop/window_game.h"

namespace frostmark::test {
namespace {

// Does DEED to the next box that comes up, and notes its text.
class OnNextBox {
 public:
  explicit OnNextBox(std::function<void(QDialog&)> deed) : deed_(std::move(deed)) {
    timer_.setInterval(1);
    QObject::connect(&timer_, &QTimer::timeout, [this] {
      auto* box = qobject_cast<QDialog*>(QApplication::activeModalWidget());
      if (box == nullptr || !box->isVisible()) return;
      timer_.stop();
      if (auto* message = qobject_cast<QMessageBox*>(box)) text_ = message->text();
      deed_(*box);
    });
    timer_.start();
  }

  QString Text() const { return text_; }

 private:
  std::function<void(QDialog&)> deed_;
  QTimer timer_;
  QString text_;
};

class Windows : public testing::Test {
 protected:
  Program& program() { return game_.program(); }
  QuickFrontEnd& front_end() { return game_.front_end(); }

  WindowGame game_;
};

TEST_F(Windows, AreMadeWhenTheirScreenIsFirstShownAndKept) {
  EXPECT_EQ(front_end().Window(program().startup), nullptr);
  game_.Start();
  ScreenWindow* window = front_end().Window(program().startup);
  ASSERT_NE(window, nullptr);
  EXPECT_TRUE(window->isVisible());
  EXPECT_EQ(front_end().Window(program().game), nullptr);
  program().startup.Hide();
  EXPECT_FALSE(window->isVisible());
  program().startup.Show();
  EXPECT_EQ(front_end().Window(program().startup), window);
}

TEST_F(Windows, OnlyToolsHaveATitleBar) {
  program().startup.Show();
  program().team_creator.Show();
  EXPECT_TRUE(game_.Window(program().startup).windowFlags() & Qt::FramelessWindowHint);
  EXPECT_FALSE(game_.Window(program().team_creator).windowFlags() & Qt::FramelessWindowHint);
  EXPECT_EQ(game_.Window(program().team_creator).windowTitle(), "TeamCreator");
}

TEST_F(Windows, MinimizeAndComeBack) {
  program().franchise.Show();
  ScreenWindow& window = game_.Window(program().franchise);
  program().franchise.Minimize();
  EXPECT_TRUE(window.isMinimized());
  EXPECT_TRUE(program().franchise.Minimized());
  window.showNormal();
  EXPECT_FALSE(program().franchise.Minimized());
  program().franchise.Minimize();
  program().franchise.Show();
  EXPECT_FALSE(window.isMinimized());
}

TEST_F(Windows, AreDraggedByTheirGround) {
  game_.Start();
  Settle();
  ScreenWindow& window = game_.Window(program().startup);
  const QPoint before = window.pos();
  const QPoint ground(window.width() / 2, window.height() - 40);
  QTest::mousePress(&window, Qt::LeftButton, {}, ground);
  QCursor::setPos(window.mapToGlobal(ground));
  const auto move = [&](QPoint to) {
    QMouseEvent event(QEvent::MouseMove, to, window.mapToGlobal(to), Qt::NoButton, Qt::LeftButton,
                      Qt::NoModifier);
    QApplication::sendEvent(&window, &event);
  };
  move(ground + QPoint(60, 30));
  EXPECT_NE(window.pos(), before);
  QTest::mouseRelease(&window, Qt::LeftButton, {}, ground);
}

TEST_F(Windows, APopupIsHiddenByItsWindowManager) {
  program().team_creator.Show();
  EXPECT_FALSE(game_.Window(program().team_creator).close());
  EXPECT_FALSE(program().team_creator.Visible());
  EXPECT_EQ(front_end().ExitCode(), -1);
}

TEST_F(Windows, TheChoiceInTheDraftCannotBeClosed) {
  program().f_select_draft.Show();
  game_.Window(program().f_select_draft).close();
  EXPECT_TRUE(program().f_select_draft.Visible());
  EXPECT_EQ(front_end().ExitCode(), -1);
}

TEST_F(Windows, ClosingAMainScreenEndsTheProgram) {
  game_.Start();
  game_.Window(program().startup).close();
  EXPECT_EQ(front_end().ExitCode(), 0);
  EXPECT_FALSE(game_.Window(program().startup).isVisible());
}

TEST_F(Windows, TheEndUnwindsProceduresThatWait) {
  game_.Start();
  bool came_back = false;
  program().startup.HighButton1.OnClick = [&] {
    while (true) front_end().Wait();
  };
  QTimer::singleShot(0,
                     [&] { Person::Click(game_.On<QWidget>(program().startup, "HighButton3")); });
  Person::Click(game_.On<QWidget>(program().startup, "HighButton1"));
  came_back = true;
  EXPECT_TRUE(came_back);
  EXPECT_EQ(front_end().ExitCode(), 0);
}

TEST_F(Windows, AnErrorIsToldAndEndsTheProgram) {
  game_.Start();
  program().startup.HighButton1.OnClick = [] { throw RuntimeError("Type mismatch: abc"); };
  OnNextBox box([](QDialog& dialog) { dialog.accept(); });
  Person::Click(game_.On<QWidget>(program().startup, "HighButton1"));
  EXPECT_EQ(box.Text(), "Type mismatch: abc");
  EXPECT_EQ(front_end().ExitCode(), 1);
}

TEST_F(Windows, AnErrorInANestedHandlerEndsTheOuterOneToo) {
  game_.Start();
  bool went_on = false;
  program().startup.HighButton1.OnClick = [&] {
    while (true) front_end().Wait();
    went_on = true;
  };
  program().startup.HighButton2.OnClick = [] { throw RuntimeError("Overflow"); };
  QTimer::singleShot(0,
                     [&] { Person::Click(game_.On<QWidget>(program().startup, "HighButton2")); });
  OnNextBox box([](QDialog& dialog) { dialog.accept(); });
  Person::Click(game_.On<QWidget>(program().startup, "HighButton1"));
  EXPECT_FALSE(went_on);
  EXPECT_EQ(front_end().ExitCode(), 1);
}

TEST_F(Windows, NothingEntersTheGameAfterItsEnd) {
  game_.Start();
  int pressed = 0;
  program().startup.HighButton1.OnClick = [&] { ++pressed; };
  game_.Window(program().startup).close();
  Person::Click(game_.On<QWidget>(program().startup, "HighButton1"));
  EXPECT_EQ(pressed, 0);
}

TEST_F(Windows, AClosedQuestionIsANo) {
  game_.Start();
  OnNextBox box([](QDialog& dialog) { dialog.close(); });
  EXPECT_EQ(front_end().ShowBox({BoxIcon::kQuestion, BoxButtons::kYesNo, "Sure?\nReally?"}),
            Answer::kNo);
  EXPECT_EQ(box.Text(), "Sure?\nReally?");
}

TEST_F(Windows, AQuestionAnsweredYes) {
  game_.Start();
  OnNextBox box(
      [](QDialog& dialog) { static_cast<QMessageBox&>(dialog).button(QMessageBox::Yes)->click(); });
  EXPECT_EQ(front_end().ShowBox({BoxIcon::kStop, BoxButtons::kYesNo, "Sure?"}), Answer::kYes);
}

TEST_F(Windows, ATextThatLooksLikeMarkupStaysAText) {
  game_.Start();
  OnNextBox box([](QDialog& dialog) {
    EXPECT_EQ(static_cast<QMessageBox&>(dialog).textFormat(), Qt::PlainText);
    dialog.accept();
  });
  EXPECT_EQ(front_end().ShowBox({BoxIcon::kNone, BoxButtons::kOk, "<b>Boston</b>"}), Answer::kOk);
}

TEST_F(Windows, ACancelledInputBoxGivesTheEmptyText) {
  game_.Start();
  OnNextBox box([](QDialog& dialog) {
    static_cast<QInputDialog&>(dialog).setTextValue("7");
    dialog.reject();
  });
  EXPECT_EQ(front_end().AskText("Desired overall?"), "");
  OnNextBox accepted([](QDialog& dialog) {
    static_cast<QInputDialog&>(dialog).setTextValue("85");
    dialog.accept();
  });
  EXPECT_EQ(front_end().AskText("Desired overall?"), "85");
}

TEST_F(Windows, ATimerDoesNotTickInsideItsOwnTick) {
  game_.Start();
  Timer& timer = program().game.Timer1;
  int depth = 0;
  int deepest = 0;
  int ticks = 0;
  timer.OnTick = [&] {
    deepest = std::max(deepest, ++depth);
    QTest::qWait(250);
    --depth;
    if (++ticks == 2) timer.Disable();
  };
  timer.Enable();
  while (timer.Enabled()) front_end().Wait();
  EXPECT_EQ(deepest, 1);
}

TEST_F(Windows, YieldLetsEventsRunAndCostsNextToNothing) {
  game_.Start();
  bool ran = false;
  QTimer::singleShot(0, [&] { ran = true; });
  const auto start = std::chrono::steady_clock::now();
  constexpr int kYields = 1000000;
  for (int i = 0; i < kYields; ++i) front_end().Yield();
  const auto took = std::chrono::steady_clock::now() - start;
  EXPECT_TRUE(ran);
  // Generous, for slow and busy machines; frostmark-bench says what it is.
  EXPECT_LT(took / kYields, std::chrono::nanoseconds(1000));
}

}  // namespace
}  // namespace frostmark::test
