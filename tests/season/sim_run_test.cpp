#include <functional>

#include "tests/support/game_fixture.h"

// The press of "Sim" and the run that follows.

namespace frostmark::test {
namespace {

class SimRunTest : public GameFixture {
 protected:
  SimRunTest() {
    world.FillWorld();
    TakeOver("Rank F", "F0 Wolves");
    franchise().Show();
    dice().KeepRolls(false);
  }
  void Sim(const std::string& answer) {
    front_end().QueueAnswer(answer);
    franchise().Command2.Click();
  }
  int GamesPlayed() { return static_cast<int>(ordvik().counts().file_writes) / 2; }

  void ExpectRefused(const std::string& answer, const std::string& text) {
    Sim(answer);
    ASSERT_FALSE(front_end().Boxes().empty());
    EXPECT_EQ(front_end().Boxes().back().text, text) << answer;
    EXPECT_EQ(front_end().Boxes().back().icon, BoxIcon::kStop);
    EXPECT_EQ(front_end().Boxes().back().buttons, BoxButtons::kOk);
    EXPECT_FALSE(franchise().SimRunning);
    EXPECT_FALSE(franchise().Command5.Visible());
    EXPECT_EQ(GamesPlayed(), 0);
  }
  void When(std::function<bool()> is_time, std::function<void()> action) {
    front_end().AtYield([=, this] {
      if (is_time()) return action();
      When(is_time, action);
    });
  }
};

constexpr const char* kNoNumber = "You must enter a valid number!";
constexpr const char* kNotGreater = "You must select a week greater than your current!";

TEST_F(SimRunTest, InTheOffSeasonNothingIsAsked) {
  franchise().NextWeek.SetCaption("Off Season");
  franchise().Command2.Click();
  EXPECT_TRUE(front_end().Prompts().empty());
  ASSERT_EQ(front_end().Boxes().size(), 1U);
  EXPECT_EQ(front_end().Boxes()[0].text, "You can't simulate the off season!");
  EXPECT_EQ(front_end().Boxes()[0].icon, BoxIcon::kStop);
  EXPECT_FALSE(franchise().Command5.Visible());
}

TEST_F(SimRunTest, TheQuestionIsThis) {
  Sim("");
  EXPECT_EQ(front_end().Prompts(), std::vector<std::string>{"Simulate until which week?"});
}

TEST_F(SimRunTest, WhatIsNotANumberIsRefused) {
  for (const char* answer : {"", "cancel", "abc", "   ", "5 weeks", "Week 5", "1e", "--3", "1,5",
                             "1e999", "nan", "inf", "."}) {
    ExpectRefused(answer, kNoNumber);
  }
}

TEST_F(SimRunTest, ATargetNotBeyondTheCurrentWeekIsRefused) {
  for (const char* answer : {"1", "0", "-3", "1.9", "-1e3", " 1 "}) {
    ExpectRefused(answer, kNotGreater);
  }
  franchise().NextWeek.SetCaption("Week 3");
  for (const char* answer : {"3", "3.9", "2", "1"}) ExpectRefused(answer, kNotGreater);
  franchise().NextWeek.SetCaption("Week 10");
  ExpectRefused("10", kNotGreater);
}

TEST_F(SimRunTest, ACurrentWeekAboveElevenIsRefused) {
  franchise().NextWeek.SetCaption("Week 12");
  ExpectRefused("13", "You can't simulate beyond the currect schedule!");
  // The target is compared first.
  ExpectRefused("12", kNotGreater);
}

TEST_F(SimRunTest, AMarkerWithoutANumberCountsAsNothingAndTheRunEndsWithCancel) {
  for (const char* marker : {"", "Week", "nonsense", "Week x", "week 3", "Week -1e999"}) {
    franchise().NextWeek.SetCaption(marker);
    int presses = 0;
    franchise().OppOverall.SetCaption("not yet");
    When(
        [&] {
          if (franchise().OppOverall.Caption() == "not yet") return false;
          franchise().OppOverall.SetCaption("not yet");
          return ++presses == 3;
        },
        [this] { franchise().Command5.Click(); });
    Sim("1");
    EXPECT_EQ(presses, 3) << marker;
    EXPECT_EQ(franchise().NextWeek.Caption(), marker);
    EXPECT_FALSE(franchise().SimRunning);
  }
  EXPECT_TRUE(front_end().Boxes().empty());
  EXPECT_EQ(GamesPlayed(), 0);
  franchise().NextWeek.SetCaption("nonsense");
  ExpectRefused("0", kNotGreater);
}

TEST_F(SimRunTest, ALeftOverDraftMarkerIsRunFromWeekOne) {
  franchise().NextWeek.SetCaption("Draft");
  Sim("2");
  EXPECT_EQ(franchise().NextWeek.Caption(), "Week 2");
  EXPECT_EQ(GamesPlayed(), 18);
}

TEST_F(SimRunTest, ACurrentWeekOfElevenIsNotAboveElevenAndRunsUntilCancel) {
  franchise().NextWeek.SetCaption("Week 11");
  franchise().OppOverall.SetCaption("not yet");
  When([this] { return franchise().OppOverall.Caption() != "not yet"; },
       [this] {
         EXPECT_TRUE(franchise().SimRunning);
         franchise().Command5.Click();
       });
  Sim("12");
  EXPECT_TRUE(front_end().Boxes().empty());
  EXPECT_EQ(franchise().NextWeek.Caption(), "Week 11");
  // A number beyond all is above it.
  franchise().NextWeek.SetCaption("Week 99999");
  ExpectRefused("100000", "You can't simulate beyond the currect schedule!");
}

TEST_F(SimRunTest, ARunStopsWithTheTargetAsTheNextWeek) {
  Sim("5");
  EXPECT_EQ(franchise().NextWeek.Caption(), "Week 5");
  EXPECT_EQ(GamesPlayed(), 4 * 18);
  EXPECT_FALSE(franchise().SimRunning);
  EXPECT_FALSE(franchise().Command5.Visible());
  EXPECT_TRUE(front_end().Boxes().empty());
  EXPECT_EQ(front_end().Waits(), 0);
  EXPECT_NE(franchise().LooseOrWin.Caption(), "");
  EXPECT_EQ(franchise().Label19.Caption(), "vs F2 Wolves");
}

TEST_F(SimRunTest, TheTargetIsCutToAWholeNumber) {
  Sim("2.9");
  EXPECT_EQ(franchise().NextWeek.Caption(), "Week 2");
  Sim("3.0");
  EXPECT_EQ(franchise().NextWeek.Caption(), "Week 3");
  Sim("  4 ");
  EXPECT_EQ(franchise().NextWeek.Caption(), "Week 4");
  Sim("+5");
  EXPECT_EQ(franchise().NextWeek.Caption(), "Week 5");
  Sim(".06e2");
  EXPECT_EQ(franchise().NextWeek.Caption(), "Week 6");
  Sim("7.9");
  EXPECT_EQ(franchise().NextWeek.Caption(), "Week 7");
}

TEST_F(SimRunTest, ATargetOfTenLeavesWeekTenToPlay) {
  Sim("1e1");
  EXPECT_EQ(franchise().NextWeek.Caption(), "Week 10");
  EXPECT_EQ(GamesPlayed(), 9 * 18);
}

TEST_F(SimRunTest, DuringARunTheCancelButtonShows) {
  When([this] { return franchise().Alerts.ListCount() == 1; },
       [this] {
         EXPECT_TRUE(franchise().SimRunning);
         EXPECT_TRUE(franchise().Command5.Visible());
       });
  Sim("2");
}

TEST_F(SimRunTest, BetweenTwoPressesARunYields) {
  // The same week twice, with the same dice: once by a press, once by a run of one press.
  franchise().SimRunning = true;
  auto before = front_end().Yields();
  franchise().HighButton1.Click();
  const auto press = front_end().Yields() - before;
  Restart();
  world.FillWorld();
  TakeOver("Rank F", "F0 Wolves");
  before = front_end().Yields();
  Sim("2");
  EXPECT_EQ(front_end().Yields() - before, press + 1);
}

TEST_F(SimRunTest, APressBetweenTwoPressesIsPlayedTooAndItsWeekCounts) {
  // The last that a press does is to show the opponent: the yield after it is the run's own.
  franchise().OppOverall.SetCaption("not yet");
  When([this] { return franchise().OppOverall.Caption() != "not yet"; },
       [this] {
         EXPECT_EQ(franchise().NextWeek.Caption(), "Week 2");
         franchise().HighButton1.Click();
       });
  Sim("3");
  EXPECT_EQ(franchise().NextWeek.Caption(), "Week 3");
  EXPECT_EQ(GamesPlayed(), 2 * 18);
}

TEST_F(SimRunTest, CancelBetweenTwoPressesEndsTheRun) {
  franchise().OppOverall.SetCaption("not yet");
  When([this] { return franchise().OppOverall.Caption() != "not yet"; },
       [this] { franchise().Command5.Click(); });
  Sim("9");
  EXPECT_EQ(franchise().NextWeek.Caption(), "Week 2");
  EXPECT_FALSE(franchise().SimRunning);
}

TEST_F(SimRunTest, CancelEndsTheRunAfterTheWeekBeingPlayed) {
  When([this] { return GamesPlayed() == 7; },
       [this] {
         franchise().Command5.Click();
         EXPECT_FALSE(franchise().Command5.Visible());
         EXPECT_TRUE(franchise().SimRunning);
       });
  Sim("9");
  EXPECT_EQ(franchise().NextWeek.Caption(), "Week 2");
  EXPECT_EQ(GamesPlayed(), 18);
  EXPECT_FALSE(franchise().SimRunning);
  // Behind the games too, in the rest of a press.
  When([this] { return franchise().NextWeek.Caption() == "Week 4"; },
       [this] { franchise().Command5.Click(); });
  Sim("9");
  EXPECT_EQ(franchise().NextWeek.Caption(), "Week 4");
  EXPECT_EQ(GamesPlayed(), 3 * 18);
}

TEST_F(SimRunTest, ATargetBeyondTheScheduleGoesThroughTheOffSeason) {
  front_end().AtWait([] { throw ProgramEnded(); });  // the next opponent may have moved
  try {
    Sim("20");
  } catch (const ProgramEnded&) {
  }
  EXPECT_EQ(franchise().NextWeek.Caption(), "Week 1");
  EXPECT_FALSE(franchise().SimRunning);
  EXPECT_FALSE(franchise().Command5.Visible());
  EXPECT_TRUE(program().f_results.Visible());
  EXPECT_FALSE(franchise().Visible());
  EXPECT_EQ(franchise().Season.Caption(), "1");
  EXPECT_EQ(GamesPlayed(), 180);
}

TEST_F(SimRunTest, ADoubledPositionIsAskedAboutBeforeEveryWeek) {
  Lines roster = MakeRoster(74);
  roster[6].back() = 'N';
  world.WriteTeam("Rank F", "F0 Wolves", roster);
  franchise().ClearRoster();
  for (const std::string& record : roster) franchise().AddToRoster(record);
  front_end().QueueAnswer("4");
  for (const char* answer : {"no", "no", "no"}) front_end().QueueAnswer(answer);
  franchise().Command2.Click();
  EXPECT_EQ(franchise().NextWeek.Caption(), "Week 4");
  EXPECT_EQ(front_end().Boxes().size(), 3U);
  EXPECT_EQ(front_end().LeftOverAnswers(), 0U);
  // A yes ends the run.
  front_end().QueueAnswer("9");
  for (const char* answer : {"no", "yes"}) front_end().QueueAnswer(answer);
  franchise().Command2.Click();
  EXPECT_EQ(franchise().NextWeek.Caption(), "Week 5");
  EXPECT_FALSE(franchise().SimRunning);
}

TEST_F(SimRunTest, AMissingPositionEndsTheRun) {
  franchise().MainList.RemoveItem(0);
  Sim("5");
  EXPECT_EQ(franchise().NextWeek.Caption(), "Week 1");
  EXPECT_EQ(front_end().Boxes().size(), 1U);
  EXPECT_FALSE(franchise().SimRunning);
  EXPECT_FALSE(franchise().Command5.Visible());
}

}  // namespace
}  // namespace frostmark::test
