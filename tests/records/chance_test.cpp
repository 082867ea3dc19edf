#include <gtest/gtest.h>

#include <array>
#include <set>

#include "records/pair_search.h"
#include "tests/support/game_fixture.h"

namespace frostmark::test {
namespace {

TEST(ClockDiceTest, GivesEveryNumberFromOneToNAboutEquallyOften) {
  ClockDice dice;
  std::array<int, 7> seen{};
  constexpr int kRolls = 70000;
  for (int i = 0; i < kRolls; ++i) {
    const int roll = dice.Roll(7);
    ASSERT_GE(roll, 1);
    ASSERT_LE(roll, 7);
    ++seen[static_cast<std::size_t>(roll - 1)];
  }
  for (const int count : seen) EXPECT_NEAR(count, kRolls / 7, 800);
}

TEST(ClockDiceTest, RollsWithinOneTickOfTheClockDiffer) {
  ClockDice dice;
  std::set<int> seen;
  for (int i = 0; i < 100; ++i) seen.insert(dice.Roll(32767));
  EXPECT_GT(seen.size(), 90U);
}

TEST(ClockDiceTest, TwoFreshOnesDiffer) {
  // So does each start of the program.
  const auto first_rolls = [] {
    ClockDice dice;
    std::array<int, 4> rolls{};
    for (int& roll : rolls) roll = dice.Roll(32767);
    return rolls;
  };
  std::set<std::array<int, 4>> seen;
  for (int i = 0; i < 50; ++i) seen.insert(first_rolls());
  EXPECT_EQ(seen.size(), 50U);
}

TEST(ClockDiceTest, TakesTheEndsOfItsRange) {
  ClockDice dice;
  for (int i = 0; i < 100; ++i) {
    EXPECT_EQ(dice.Roll(1), 1);
    EXPECT_EQ(dice.Roll(0), 1);
    EXPECT_LE(dice.Roll(-5), 1);
    EXPECT_GE(dice.Roll(32767), 1);
  }
}

class ChanceTest : public GameFixture {};

TEST_F(ChanceTest, RollUpToAsksTheDiceOnceAndCounts) {
  dice().Give({3, 5});
  EXPECT_EQ(ordvik().RollUpTo(6), 3);
  EXPECT_EQ(ordvik().RollUpTo(5), 5);
  EXPECT_EQ(dice().Asked(), (std::vector<int>{6, 5}));
  EXPECT_EQ(ordvik().counts().rolls, 2);
}

TEST(ContainsTextTest, FindsAPairOfLettersAtEachPlaceOfTextsOfEachLength) {
  for (std::size_t length = 2; length < 120; ++length) {
    const std::string text(length, 'R');
    EXPECT_FALSE(Ordvik::ContainsText(1, text, "RF")) << length;
    EXPECT_FALSE(Ordvik::ContainsText(1, text, "FR")) << length;
    for (std::size_t at = 0; at + 2 <= length; ++at) {
      std::string with = text;
      with.replace(at, 2, "CF");
      EXPECT_TRUE(Ordvik::ContainsText(1, with, "CF")) << length << " at " << at;
      EXPECT_TRUE(ContainsPair(with, "CF")) << length << " at " << at;
      EXPECT_FALSE(ContainsPair(with, "FC")) << length << " at " << at;
    }
  }
}

TEST(ContainsTextTest, LooksFromAOneBasedPositionOnAndMindsCase) {
  EXPECT_TRUE(Ordvik::ContainsText(1, "Boston Braves", "Bos"));
  EXPECT_FALSE(Ordvik::ContainsText(2, "Boston Braves", "Bos"));
  EXPECT_TRUE(Ordvik::ContainsText(8, "Boston Braves", "Braves"));
  EXPECT_FALSE(Ordvik::ContainsText(9, "Boston Braves", "Braves"));
  EXPECT_FALSE(Ordvik::ContainsText(1, "Boston Braves", "boston"));
  EXPECT_FALSE(Ordvik::ContainsText(1, "", "a"));
  EXPECT_FALSE(Ordvik::ContainsText(100, "short", "s"));
  EXPECT_TRUE(Ordvik::ContainsText(1, "GO", "GO"));
}

}  // namespace
}  // namespace frostmark::test
