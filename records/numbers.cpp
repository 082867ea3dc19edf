#include "records/numbers.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <limits>
#include <optional>

#include "records/runtime_error.h"

namespace frostmark {
namespace {

constexpr bool IsDigit(char c) { return c >= '0' && c <= '9'; }

struct LeadingNumber {
  double value;
  std::size_t length;  // characters taken from the text, blanks in front included
};

std::size_t SkipDigits(std::string_view text, std::size_t at) {
  while (at < text.size() && IsDigit(text[at])) ++at;
  return at;
}

std::size_t SkipBlanks(std::string_view text, std::size_t at) {
  while (at < text.size() && text[at] == ' ') ++at;
  return at;
}

// Where an exponent that begins at AT ends, or AT itself when there is none.
std::size_t SkipExponent(std::string_view text, std::size_t at) {
  if (at >= text.size() || (text[at] != 'e' && text[at] != 'E')) return at;
  std::size_t digits = at + 1;
  if (digits < text.size() && (text[digits] == '+' || text[digits] == '-')) ++digits;
  const std::size_t end = SkipDigits(text, digits);
  return end > digits ? end : at;
}

// The power of ten that an exponent from AT ("e-12") to END means. What would not fit is cut where
// no text is long enough to make up for it.
long ExponentOf(std::string_view text, std::size_t at, std::size_t end) {
  constexpr long kBeyondAll = 1'000'000'000'000;
  if (at == end) return 0;
  ++at;
  const bool negative = text[at] == '-';
  if (text[at] == '-' || text[at] == '+') ++at;
  long power = 0;
  for (; at < end && power < kBeyondAll; ++at) power = power * 10 + (text[at] - '0');
  return negative ? -power : power;
}

// The power of ten just above the digits MANTISSA: 2 for "12.5", -1 for "0.012".
long PowerAbove(std::string_view mantissa) {
  const std::size_t point = std::min(mantissa.find('.'), mantissa.size());
  const std::size_t first = std::min(mantissa.find_first_of("123456789"), mantissa.size());
  if (first < point) return static_cast<long>(point - first);
  return static_cast<long>(point + 1) - static_cast<long>(first);
}

std::optional<LeadingNumber> ReadLeadingNumber(std::string_view text) {
  const std::size_t sign = SkipBlanks(text, 0);
  std::size_t start = sign;
  if (start < text.size() && (text[start] == '+' || text[start] == '-')) ++start;
  std::size_t end = SkipDigits(text, start);
  std::size_t digits = end - start;
  if (end < text.size() && text[end] == '.') {
    const std::size_t fraction_end = SkipDigits(text, end + 1);
    digits += fraction_end - end - 1;
    if (digits > 0) end = fraction_end;
  }
  if (digits == 0) return std::nullopt;
  const std::size_t mantissa_end = end;
  end = SkipExponent(text, end);

  double value = 0;
  const auto result = std::from_chars(text.data() + start, text.data() + end, value);
  if (result.ec == std::errc::result_out_of_range) {
    const std::string_view mantissa = text.substr(start, mantissa_end - start);
    const bool tiny = PowerAbove(mantissa) + ExponentOf(text, mantissa_end, end) < 0;
    value = tiny ? 0 : std::numeric_limits<double>::infinity();
  }
  if (text[sign] == '-') value = -value;
  return LeadingNumber{value, end};
}

// The number that TEXT as a whole stands for, if it is one.
std::optional<double> WholeTextNumber(std::string_view text) {
  const auto number = ReadLeadingNumber(text);
  if (!number || SkipBlanks(text, number->length) != text.size()) return std::nullopt;
  return number->value;
}

}  // namespace

Int16::Int16(int value) : value_(static_cast<std::int16_t>(value)) {
  if (value_ != value) throw RuntimeError("Overflow");
}

double LenientNumber(std::string_view text) {
  const auto number = ReadLeadingNumber(text);
  return number ? number->value : 0;
}

Int16 StrictInt16(std::string_view text) {
  const auto number = WholeTextNumber(text);
  if (!number) throw RuntimeError("Type mismatch: \"" + std::string(text) + "\" is not a number");
  return RoundHalfToEven(*number);
}

bool IsNumeric(std::string_view text) {
  const auto number = WholeTextNumber(text);
  return number && std::isfinite(*number);
}

Int16 RoundHalfToEven(double value) {
  const double rounded = std::nearbyint(value);
  if (!(std::fabs(rounded) <= 40000)) throw RuntimeError("Overflow");
  return {static_cast<int>(rounded)};
}

Int16 DivideHalfToEven(int numerator, int denominator) {
  int quotient = numerator / denominator;
  int remainder = numerator % denominator;
  if (remainder < 0) {
    remainder += denominator;
    --quotient;
  }
  const int twice = 2 * remainder;
  if (twice > denominator || (twice == denominator && quotient % 2 != 0)) ++quotient;
  return {quotient};
}

std::string WholeNumberText(double value) {
  std::array<char, 400> digits{};
  const auto result = std::to_chars(digits.data(), digits.data() + digits.size(), value,
                                    std::chars_format::fixed, 0);
  std::string text(digits.data(), result.ptr);
  return text == "-0" ? "0" : text;
}

}  // namespace frostmark
