#include <gtest/gtest.h>

#include "tests/support/game_fixture.h"
#include "ui/timer_board.h"

namespace frostmark::test {
namespace {

using std::chrono::milliseconds;

class Clockwork : public Screen {
 public:
  explicit Clockwork(ScreenList& screens)
      : Screen(screens, "Clockwork", "", Border::kNone, OnClose::kNothing) {}
  Timer Timer1{*this, "Timer1", 100};
  Timer Timer2{*this, "Timer2", 250};
};

class TimersTest : public ::testing::Test {
 protected:
  void SetUp() override {
    front_end_.Open(screens_);
    screen_.Timer1.OnTick = [this] { ticks_.emplace_back("one"); };
    screen_.Timer2.OnTick = [this] { ticks_.emplace_back("two"); };
  }

  ScreenList screens_;
  Clockwork screen_{screens_};
  ScriptedFrontEnd front_end_;
  Lines ticks_;
};

TEST_F(TimersTest, TickEveryIntervalWhileEnabled) {
  front_end_.PassTime(milliseconds(1000));
  EXPECT_TRUE(ticks_.empty());
  screen_.Timer1.Enable();
  front_end_.PassTime(milliseconds(99));
  EXPECT_TRUE(ticks_.empty());
  front_end_.PassTime(milliseconds(1));
  EXPECT_EQ(ticks_.size(), 1U);
  front_end_.PassTime(milliseconds(250));
  EXPECT_EQ(ticks_.size(), 3U);
  screen_.Timer1.Disable();
  front_end_.PassTime(milliseconds(1000));
  EXPECT_EQ(ticks_.size(), 3U);
}

TEST_F(TimersTest, RunInTheOrderInWhichTheyAreDue) {
  screen_.Timer2.Enable();
  screen_.Timer1.Enable();
  front_end_.PassTime(milliseconds(300));
  EXPECT_EQ(ticks_, (Lines{"one", "one", "two", "one"}));
}

TEST_F(TimersTest, EnablingAgainDoesNotRestartTheInterval) {
  screen_.Timer1.Enable();
  front_end_.PassTime(milliseconds(60));
  screen_.Timer1.Enable();
  front_end_.PassTime(milliseconds(40));
  EXPECT_EQ(ticks_.size(), 1U);
  screen_.Timer1.Disable();
  screen_.Timer1.Enable();
  front_end_.PassTime(milliseconds(99));
  EXPECT_EQ(ticks_.size(), 1U);
}

TEST_F(TimersTest, NoneTicksInsideItsOwnTick) {
  int depth = 0;
  int deepest = 0;
  screen_.Timer1.OnTick = [&] {
    deepest = std::max(deepest, ++depth);
    front_end_.PassTime(milliseconds(500));
    --depth;
  };
  screen_.Timer1.Enable();
  screen_.Timer2.Enable();
  front_end_.PassTime(milliseconds(100));
  EXPECT_EQ(deepest, 1);
  EXPECT_EQ(ticks_, (Lines{"two", "two"}));  // others go on meanwhile
}

TEST_F(TimersTest, MissedTicksAreNotMadeUpFor) {
  int ticks = 0;
  screen_.Timer1.OnTick = [&] {
    if (++ticks == 1) front_end_.PassTime(milliseconds(1050));
  };
  screen_.Timer1.Enable();
  front_end_.PassTime(milliseconds(100));
  EXPECT_EQ(ticks, 1);
  front_end_.PassTime(milliseconds(100));
  EXPECT_LE(ticks, 2);
}

TEST_F(TimersTest, AWaitRunsOneTickAndMovesTheClockToIt) {
  screen_.Timer1.Enable();
  screen_.Timer2.Enable();
  const auto start = front_end_.SinceMidnight();
  front_end_.Wait();
  EXPECT_EQ(ticks_, (Lines{"one"}));
  EXPECT_EQ(front_end_.SinceMidnight() - start, milliseconds(100));
  front_end_.WaitFor(milliseconds(30));
  EXPECT_EQ(ticks_.size(), 1U);
  EXPECT_EQ(front_end_.SinceMidnight() - start, milliseconds(130));
}

}  // namespace
}  // namespace frostmark::test
