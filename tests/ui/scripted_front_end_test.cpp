#include "tests/support/scripted_front_end.h"

#include <gtest/gtest.h>

#include <stdexcept>

#include "tests/support/game_fixture.h"

namespace frostmark::test {
namespace {

using std::chrono::hours;
using std::chrono::seconds;

TEST(ScriptedFrontEndTest, AnswersQuestionsFromItsQueue) {
  ScriptedFrontEnd front_end;
  const MessageBox question{BoxIcon::kStop, BoxButtons::kYesNo, "really?"};
  front_end.QueueAnswer("yes");
  front_end.QueueAnswer("no");
  front_end.QueueAnswer("twelve");
  front_end.QueueAnswer("cancel");
  EXPECT_EQ(front_end.ShowBox(question), Answer::kYes);
  EXPECT_EQ(front_end.ShowBox(question), Answer::kNo);
  EXPECT_EQ(front_end.AskText("how many?"), "twelve");
  EXPECT_EQ(front_end.AskText("how many?"), "");
  EXPECT_THROW(front_end.ShowBox(question), std::logic_error);
  EXPECT_THROW(front_end.AskText("how many?"), std::logic_error);
  front_end.QueueAnswer("perhaps");
  EXPECT_THROW(front_end.ShowBox(question), std::logic_error);
  EXPECT_EQ(front_end.LeftOverAnswers(), 0U);
}

TEST(ScriptedFrontEndTest, ABoxWithOneButtonNeedsNoAnswer) {
  ScriptedFrontEnd front_end;
  const MessageBox message{BoxIcon::kInformation, BoxButtons::kOk, "so it is"};
  EXPECT_EQ(front_end.ShowBox(message), Answer::kOk);
  front_end.QueueAnswer("ok");
  front_end.QueueAnswer("yes");
  EXPECT_EQ(front_end.ShowBox(message), Answer::kOk);
  EXPECT_EQ(front_end.ShowBox(message), Answer::kOk);
  EXPECT_EQ(front_end.LeftOverAnswers(), 1U);
  EXPECT_EQ(front_end.Boxes().size(), 3U);
}

TEST(ScriptedFrontEndTest, PlaysQueuedActionsOneAYield) {
  ScriptedFrontEnd front_end;
  int at_yield = 0;
  int at_wait = 0;
  front_end.AtYield([&] { ++at_yield; });
  front_end.AtYield([&] { ++at_yield; });
  front_end.AtWait([&] { ++at_wait; });
  front_end.Yield();
  EXPECT_EQ(at_yield, 1);
  front_end.Wait();
  EXPECT_EQ(at_yield, 1);
  EXPECT_EQ(at_wait, 1);
  front_end.Yield();
  front_end.Yield();
  EXPECT_EQ(at_yield, 2);
  EXPECT_EQ(front_end.Yields(), 3);
  EXPECT_EQ(front_end.Waits(), 1);
}

TEST(ScriptedFrontEndTest, AnActionMayYieldItself) {
  ScriptedFrontEnd front_end;
  Lines events;
  front_end.AtYield([&] {
    events.emplace_back("outer");
    front_end.Yield();
    events.emplace_back("outer again");
  });
  front_end.AtYield([&] { events.emplace_back("inner"); });
  front_end.Yield();
  EXPECT_EQ(events, (Lines{"outer", "inner", "outer again"}));
}

TEST(ScriptedFrontEndTest, AWaitForNothingFailsTheTest) {
  ScriptedFrontEnd front_end;
  EXPECT_THROW(front_end.Wait(), std::logic_error);
  front_end.WaitFor(seconds(1));
}

TEST(ScriptedFrontEndTest, TheClockStartsAtNoonAndMovesOnlyWhenTold) {
  ScriptedFrontEnd front_end;
  EXPECT_EQ(front_end.SinceMidnight(), hours(12));
  front_end.Yield();
  EXPECT_EQ(front_end.SinceMidnight(), hours(12));
  front_end.PassTime(seconds(5));
  EXPECT_EQ(front_end.SinceMidnight(), hours(12) + seconds(5));
  front_end.SetSinceMidnight(hours(24) - seconds(1), true);
  EXPECT_EQ(front_end.SinceMidnight(), hours(24) - seconds(1));
  front_end.WaitFor(seconds(3));
  EXPECT_EQ(front_end.SinceMidnight(), seconds(2));
}

TEST(ScriptedFrontEndTest, TheEndIsNotAFailure) {
  ScriptedFrontEnd front_end;
  bool taken_for_failure = false;
  const auto end = [&] {
    try {
      front_end.EndProgram();
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
