#include "records/numbers.h"

#include <gtest/gtest.h>

#include <clocale>
#include <cmath>
#include <limits>

#include "records/runtime_error.h"

namespace frostmark::test {
namespace {

TEST(Int16Test, HoldsSixteenBitsAndNoMore) {
  EXPECT_EQ(Int16(32767), 32767);
  EXPECT_EQ(Int16(-32768), -32768);
  EXPECT_THROW(Int16(32768), RuntimeError);
  EXPECT_THROW(Int16(-32769), RuntimeError);
  EXPECT_THROW(Int16(65536 + 5), RuntimeError);
}

TEST(Int16Test, OverflowSaysSoAndLeavesTheNumber) {
  Int16 number = 32767;
  try {
    number += 1;
    FAIL() << "no overflow";
  } catch (const RuntimeError& error) {
    EXPECT_STREQ(error.what(), "Overflow");
  }
  EXPECT_EQ(number, 32767);
  number -= 65535;
  EXPECT_EQ(number, -32768);
  EXPECT_THROW(number -= 1, RuntimeError);
}

TEST(LenientNumberTest, ReadsTheLeadingNumber) {
  EXPECT_EQ(LenientNumber("85"), 85);
  EXPECT_EQ(LenientNumber("  85"), 85);
  EXPECT_EQ(LenientNumber("85 and more"), 85);
  EXPECT_EQ(LenientNumber("-7x"), -7);
  EXPECT_EQ(LenientNumber("+7"), 7);
  EXPECT_EQ(LenientNumber("1.5.7"), 1.5);
  EXPECT_EQ(LenientNumber(".5"), 0.5);
  EXPECT_EQ(LenientNumber("5."), 5);
  EXPECT_EQ(LenientNumber("1e2"), 100);
  EXPECT_EQ(LenientNumber("1E-2"), 0.01);
  EXPECT_EQ(LenientNumber("3e"), 3);
  EXPECT_EQ(LenientNumber("3e+"), 3);
}

TEST(LenientNumberTest, GivesZeroForTextThatDoesNotBeginWithANumber) {
  for (const char* text : {"", " ", "x85", "-", "+", ".", "-.", "e5", "NaN", "inf", "\t8", ","}) {
    EXPECT_EQ(LenientNumber(text), 0) << '"' << text << '"';
  }
}

TEST(LenientNumberTest, SurvivesNumbersBeyondAllBounds) {
  EXPECT_EQ(LenientNumber("1e999"), std::numeric_limits<double>::infinity());
  EXPECT_EQ(LenientNumber("-1e999"), -std::numeric_limits<double>::infinity());
  EXPECT_EQ(LenientNumber("1e-999"), 0);
  EXPECT_EQ(LenientNumber(std::string(5000, '9')), std::numeric_limits<double>::infinity());
}

TEST(LenientNumberTest, WhatIsTooSmallForANumberIsZeroHoweverItIsWritten) {
  const std::string zeros(400, '0');
  EXPECT_EQ(LenientNumber("0." + zeros + "1"), 0);
  EXPECT_EQ(LenientNumber("." + zeros + "1"), 0);
  EXPECT_EQ(LenientNumber("-0." + zeros + "1"), 0);
  EXPECT_EQ(LenientNumber(zeros + "." + zeros + "1 and more"), 0);
  EXPECT_EQ(LenientNumber("123." + zeros + "e-999"), 0);
  EXPECT_EQ(LenientNumber("0." + zeros + "1e-1"), 0);
  EXPECT_EQ(LenientNumber("0." + zeros + "1e+20"), 0);
  EXPECT_EQ(LenientNumber("5e-99999999999999999999"), 0);
  EXPECT_EQ(LenientNumber("0e99999999999999999999"), 0);
  EXPECT_FALSE(std::isinf(LenientNumber("0." + zeros + "1e402")));
  EXPECT_DOUBLE_EQ(LenientNumber("0." + zeros + "1e402"), 10);
}

TEST(LenientNumberTest, WhatIsTooLargeIsInfiniteHoweverItIsWritten) {
  const double infinity = std::numeric_limits<double>::infinity();
  const std::string zeros(400, '0');
  EXPECT_EQ(LenientNumber("1" + zeros + ".5"), infinity);
  EXPECT_EQ(LenientNumber("1" + zeros + "e-1"), infinity);
  EXPECT_EQ(LenientNumber("0." + zeros + "1e999"), infinity);
  EXPECT_EQ(LenientNumber("-5e99999999999999999999"), -infinity);
  EXPECT_DOUBLE_EQ(LenientNumber("1" + zeros + "e-399"), 10);
}

TEST(LenientNumberTest, DoesNotLookAtTheLocale) {
  const std::string before = std::setlocale(LC_ALL, nullptr);
  std::setlocale(LC_ALL, "de_DE.UTF-8");
  EXPECT_EQ(LenientNumber("1.5"), 1.5);
  EXPECT_EQ(LenientNumber("1,5"), 1);
  EXPECT_EQ(WholeNumberText(1234567), "1234567");
  std::setlocale(LC_ALL, before.c_str());
}

TEST(StrictInt16Test, TakesAWholeTextThatIsANumber) {
  EXPECT_EQ(StrictInt16("85"), 85);
  EXPECT_EQ(StrictInt16(" 85 "), 85);
  EXPECT_EQ(StrictInt16("-3"), -3);
  EXPECT_EQ(StrictInt16("84.5"), 84);
  EXPECT_EQ(StrictInt16("85.5"), 86);
  EXPECT_EQ(StrictInt16("1e1"), 10);
  EXPECT_EQ(StrictInt16("32767"), 32767);
}

TEST(StrictInt16Test, RefusesEverythingElse) {
  for (const char* text : {"", " ", "x", "85x", "8 5", "--3", "1e", "Week 3"}) {
    EXPECT_THROW(StrictInt16(text), RuntimeError) << '"' << text << '"';
  }
  for (const char* text : {"32768", "-32769", "32767.5", "99999999999", "1e999"}) {
    EXPECT_THROW(StrictInt16(text), RuntimeError) << text;
  }
}

TEST(IsNumericTest, TakesNumbersAsAPersonTypesThem) {
  for (const char* text : {"7", "7.9", "-3", "1e1", " 7 ", "+7", ".5", "100000", "0"}) {
    EXPECT_TRUE(IsNumeric(text)) << '"' << text << '"';
  }
  for (const char* text :
       {"", "   ", "seven", "7 weeks", "7,5", "1e", "-", "1e999", "nan", "inf"}) {
    EXPECT_FALSE(IsNumeric(text)) << '"' << text << '"';
  }
}

TEST(RoundingTest, GivesATieToTheEvenNumber) {
  EXPECT_EQ(RoundHalfToEven(84.5), 84);
  EXPECT_EQ(RoundHalfToEven(85.5), 86);
  EXPECT_EQ(RoundHalfToEven(-0.5), 0);
  EXPECT_EQ(RoundHalfToEven(-1.5), -2);
  EXPECT_EQ(RoundHalfToEven(84.4999), 84);
  EXPECT_THROW(RoundHalfToEven(32767.5), RuntimeError);
  EXPECT_THROW(RoundHalfToEven(1e300), RuntimeError);
  EXPECT_THROW(RoundHalfToEven(std::nan("")), RuntimeError);
}

TEST(RoundingTest, DividesExactlyAndThenRounds) {
  for (int numerator = -1000; numerator <= 1000; ++numerator) {
    for (const int denominator : {1, 2, 3, 5, 6, 7, 11}) {
      const double exact = static_cast<double>(numerator) / denominator;
      EXPECT_EQ(DivideHalfToEven(numerator, denominator), std::nearbyint(exact))
          << numerator << " / " << denominator;
    }
  }
  EXPECT_THROW(DivideHalfToEven(65536, 2), RuntimeError);
}

TEST(WholeNumberTextTest, WritesPlainDigits) {
  EXPECT_EQ(WholeNumberText(0), "0");
  EXPECT_EQ(WholeNumberText(-0.0), "0");
  EXPECT_EQ(WholeNumberText(-12), "-12");
  EXPECT_EQ(WholeNumberText(1e15), "1000000000000000");
  EXPECT_EQ(WholeNumberText(1e300).size(), 301U);
}

}  // namespace
}  // namespace frostmark::test
