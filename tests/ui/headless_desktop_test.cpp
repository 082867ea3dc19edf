#include "ui/headless_desktop.h"

#include <gtest/gtest.h>

#include <stdexcept>

#include "tests/support/game_fixture.h"

namespace frostmark::test {
namespace {

using std::chrono::hours;
using std::chrono::seconds;

TEST(HeadlessDesktopTest, AnswersQuestionsFromItsQueue) {
  HeadlessDesktop desktop;
  const MessageBox question{BoxIcon::kStop, BoxButtons::kYesNo, "really?"};
  desktop.QueueAnswer("yes");
  desktop.QueueAnswer("no");
  desktop.QueueAnswer("twelve");
  desktop.QueueAnswer("cancel");
  EXPECT_EQ(desktop.ShowBox(question), Answer::kYes);
  EXPECT_EQ(desktop.ShowBox(question), Answer::kNo);
  EXPECT_EQ(desktop.AskText("how many?"), "twelve");
  EXPECT_EQ(desktop.AskText("how many?"), "");
  EXPECT_THROW(desktop.ShowBox(question), std::logic_error);
  EXPECT_THROW(desktop.AskText("how many?"), std::logic_error);
  desktop.QueueAnswer("perhaps");
  EXPECT_THROW(desktop.ShowBox(question), std::logic_error);
  EXPECT_EQ(desktop.LeftOverAnswers(), 0U);
}

TEST(HeadlessDesktopTest, ABoxWithOneButtonNeedsNoAnswer) {
  HeadlessDesktop desktop;
  const MessageBox message{BoxIcon::kInformation, BoxButtons::kOk, "so it is"};
  EXPECT_EQ(desktop.ShowBox(message), Answer::kOk);
  desktop.QueueAnswer("ok");
  desktop.QueueAnswer("yes");
  EXPECT_EQ(desktop.ShowBox(message), Answer::kOk);
  EXPECT_EQ(desktop.ShowBox(message), Answer::kOk);
  EXPECT_EQ(desktop.LeftOverAnswers(), 1U);
  EXPECT_EQ(desktop.Boxes().size(), 3U);
}

TEST(HeadlessDesktopTest, PlaysQueuedActionsOneAYield) {
  HeadlessDesktop desktop;
  int at_yield = 0;
  int at_wait = 0;
  desktop.AtYield([&] { ++at_yield; });
  desktop.AtYield([&] { ++at_yield; });
  desktop.AtWait([&] { ++at_wait; });
  desktop.Yield();
  EXPECT_EQ(at_yield, 1);
  desktop.Wait();
  EXPECT_EQ(at_yield, 1);
  EXPECT_EQ(at_wait, 1);
  desktop.Yield();
  desktop.Yield();
  EXPECT_EQ(at_yield, 2);
  EXPECT_EQ(desktop.Yields(), 3);
  EXPECT_EQ(desktop.Waits(), 1);
}

TEST(HeadlessDesktopTest, AnActionMayYieldItself) {
  HeadlessDesktop desktop;
  Lines events;
  desktop.AtYield([&] {
    events.emplace_back("outer");
    desktop.Yield();
    events.emplace_back("outer again");
  });
  desktop.AtYield([&] { events.emplace_back("inner"); });
  desktop.Yield();
  EXPECT_EQ(events, (Lines{"outer", "inner", "outer again"}));
}

TEST(HeadlessDesktopTest, AWaitForNothingFailsTheTest) {
  HeadlessDesktop desktop;
  EXPECT_THROW(desktop.Wait(), std::logic_error);
  desktop.WaitFor(seconds(1));
}

TEST(HeadlessDesktopTest, TheClockStartsAtNoonAndMovesOnlyWhenTold) {
  HeadlessDesktop desktop;
  EXPECT_EQ(desktop.SinceMidnight(), hours(12));
  desktop.Yield();
  EXPECT_EQ(desktop.SinceMidnight(), hours(12));
  desktop.PassTime(seconds(5));
  EXPECT_EQ(desktop.SinceMidnight(), hours(12) + seconds(5));
  desktop.SetSinceMidnight(hours(24) - seconds(1), true);
  EXPECT_EQ(desktop.SinceMidnight(), hours(24) - seconds(1));
  desktop.WaitFor(seconds(3));
  EXPECT_EQ(desktop.SinceMidnight(), seconds(2));
}

TEST(HeadlessDesktopTest, TheEndIsNotAFailure) {
  HeadlessDesktop desktop;
  bool taken_for_failure = false;
  const auto end = [&] {
    try {
      desktop.EndProgram();
    } catch (const std::exception&) {
      taken_for_failure = true;
    }
  };
  EXPECT_THROW(end(), ProgramEnded);
  EXPECT_FALSE(taken_for_failure);
}

class ProgramsTest : public GameFixture {};

TEST_F(ProgramsTest, SeveralLiveSideBySide) {
  Session other(world.path());
  startup().HighButton2.Click();
  other.program.franchise.TeamName.SetCaption("Other");
  EXPECT_FALSE(other.program.startup.HighButton4.Visible());
  EXPECT_EQ(franchise().TeamName.Caption(), "");
}

}  // namespace
}  // namespace frostmark::test
