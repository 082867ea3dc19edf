#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace frostmark {

// All numbers of the game live in text. Each kind of conversion stands here once. None of them
// looks at the locale: the decimal sign is always ".".

// A 16-bit signed whole number. Every way in is checked: a value outside -32768 to 32767 throws
// RuntimeError ("Overflow").
class Int16 {
 public:
  constexpr Int16() = default;
  Int16(int value);  // NOLINT(google-explicit-constructor): numbers flow in and out freely
  constexpr operator int() const { return value_; }  // NOLINT(google-explicit-constructor)
  Int16& operator+=(int amount) { return *this = Int16(value_ + amount); }
  Int16& operator-=(int amount) { return *this = Int16(value_ - amount); }

 private:
  std::int16_t value_ = 0;
};

// The leading number of TEXT (blanks, sign, digits with an optional point, exponent), or 0 if TEXT
// does not begin with one. Never fails.
double LenientNumber(std::string_view text);

// TEXT as a whole as a 16-bit number, a fraction rounded half to even. Throws RuntimeError when
// TEXT is not a number or does not fit.
Int16 StrictInt16(std::string_view text);

// Whether the whole of TEXT is one finite number, blanks around it allowed: "7.9", "-3", "1e1".
bool IsNumeric(std::string_view text);

// VALUE rounded to the nearest whole number, a tie going to the even one: 84.5 gives 84, 85.5 gives
// 86. Throws RuntimeError when the result does not fit 16 bits.
Int16 RoundHalfToEven(double value);

// NUMERATOR / DENOMINATOR rounded half to even; DENOMINATOR is above 0.
Int16 DivideHalfToEven(int numerator, int denominator);

// VALUE (a whole number) in plain decimal digits, without exponent or fraction.
std::string WholeNumberText(double value);

}  // namespace frostmark
