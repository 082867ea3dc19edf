#include "tests/support/game_fixture.h"

// The wait that gives the draft its pace.

namespace frostmark::test {
namespace {

class WaitSecondsTest : public GameFixture {
 protected:
  std::chrono::microseconds Waited(const std::string& seconds) {
    const auto before = front_end().Waits();
    const auto start = front_end().SinceMidnight();
    ordvik().WaitSeconds(seconds);
    waits = front_end().Waits() - before;
    return front_end().SinceMidnight() - start;
  }
  std::int64_t waits = 0;
};

TEST_F(WaitSecondsTest, ItWaitsForAsManySecondsAsTheTextSays) {
  using std::chrono::milliseconds;
  EXPECT_EQ(Waited("1"), milliseconds(1000));
  EXPECT_EQ(Waited("2.5"), milliseconds(2500));
  EXPECT_EQ(Waited("0"), milliseconds(0));
  EXPECT_EQ(waits, 0);
  EXPECT_EQ(Waited("-1"), milliseconds(0));
  EXPECT_EQ(Waited("soon"), milliseconds(0));
  EXPECT_EQ(Waited("1 moment"), milliseconds(1000));
}

TEST_F(WaitSecondsTest, AWaitBeyondAllBoundsLastsADay) {
  using std::chrono::hours;
  for (const char* seconds : {"86400", "86401", "1e300", "1e999"}) {
    EXPECT_EQ(Waited(seconds), hours(24)) << seconds;
  }
  EXPECT_EQ(Waited("-1e300"), hours(0));
  // So it does by a clock that starts at 0 again.
  front_end().SetSinceMidnight(hours(20), true);
  std::int64_t ticks = 0;
  franchise().Timer1.OnTick = [&] { ++ticks; };
  franchise().Timer1.Enable();
  ordvik().WaitSeconds("1e300");
  EXPECT_EQ(front_end().SinceMidnight(), hours(20));
  EXPECT_EQ(ticks, 24 * 60 * 60);
}

TEST_F(WaitSecondsTest, TimersTickWhileItWaits) {
  int ticks = 0;
  franchise().Timer1.OnTick = [&] { ++ticks; };
  franchise().Timer1.Enable();
  Waited("3.5");
  EXPECT_EQ(ticks, 3);
}

TEST_F(WaitSecondsTest, AWaitAcrossMidnightLastsUntilTheSameTimeOfTheNextDay) {
  using std::chrono::hours;
  using std::chrono::milliseconds;
  front_end().SetSinceMidnight(hours(24) - milliseconds(300), true);
  const auto start = front_end().SinceMidnight();
  std::int64_t ticks = 0;
  franchise().Timer1.OnTick = [&] { ++ticks; };
  franchise().Timer1.Enable();
  ordvik().WaitSeconds("1");
  EXPECT_EQ(front_end().SinceMidnight(), start);
  EXPECT_EQ(ticks, 24 * 60 * 60);
}

TEST_F(WaitSecondsTest, AWaitThatEndsBeforeMidnightIsOrdinary) {
  using std::chrono::hours;
  using std::chrono::milliseconds;
  front_end().SetSinceMidnight(hours(24) - milliseconds(1300), true);
  EXPECT_EQ(Waited("1"), milliseconds(1000));
}

}  // namespace
}  // namespace frostmark::test
