// Text where a number is expected.
#include "records/numbers.h"

#include <cmath>

#include "records/runtime_error.h"
#include "tests/fuzz/fuzz.h"

namespace frostmark::test {

void Take(std::string_view input) {
  const double number = LenientNumber(input);
  Require(!std::isnan(number), "a number is one, if beyond all others");
  Require(!IsNumeric(input) || std::isfinite(number), "what is numeric is a number");
  try {
    const int whole = StrictInt16(input);
    Require(IsNumeric(input), "a strict number is numeric");
    Require(whole == RoundHalfToEven(number), "both ways to read a number agree");
  } catch (const RuntimeError&) {
  }
  try {
    const int rounded = RoundHalfToEven(number);
    Require(std::abs(rounded - number) <= 0.5, "rounded to the nearest");
  } catch (const RuntimeError&) {
    Require(std::abs(number) > 32767, "only what does not fit overflows");
  }
  if (!std::isfinite(number)) return;
  const std::string text = WholeNumberText(std::floor(number));
  Require(text.find_first_not_of("-0123456789") == std::string::npos, "plain digits");
}

}  // namespace frostmark::test
