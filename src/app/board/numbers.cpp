#include "app/board/numbers.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <limits>

#include "app/board/runtime_error.h"
#include "words/say.h"

namespace numorra {
namespace {

constexpr std::string_view kBlanks = " \t\r\n\v\f";

bool IsDigit(char c) {
  return c >= '0' && c <= '9';
}

/// The number of leading characters of `text` that form a sign, digits and one point; 0 if there is
/// no digit.
std::size_t NumberLength(std::string_view text) {
  std::size_t end = !text.empty() && (text[0] == '+' || text[0] == '-') ? 1 : 0;
  bool point = false;
  bool digit = false;
  for (; end < text.size(); ++end) {
    if (IsDigit(text[end])) {
      digit = true;
    } else if (text[end] == '.' && !point) {
      point = true;
    } else {
      break;
    }
  }
  return digit ? end : 0;
}

double ParseNumber(std::string_view number) {
  if (number.front() == '+') number.remove_prefix(1);
  double value = 0;
  const auto result = std::from_chars(number.data(), number.data() + number.size(), value,
                                      std::chars_format::fixed);
  if (result.ec != std::errc::result_out_of_range) return value;
  // The digits before the point tell underflow from overflow.
  const std::string_view whole = number.substr(0, number.find('.'));
  if (whole.find_first_not_of("-0") == std::string_view::npos) return 0;
  throw RuntimeError(Fault::Overflow);
}

template <class Integer>
Integer RoundTo(double value) {
  const double rounded = std::nearbyint(value);  // halves to even, the default rounding mode
  if (!(rounded >= std::numeric_limits<Integer>::min() &&
        rounded <= std::numeric_limits<Integer>::max())) {
    throw RuntimeError(Fault::Overflow);
  }
  return static_cast<Integer>(rounded);
}

}  // namespace

double Val(std::string_view text) {
  text.remove_prefix(std::min(text.find_first_not_of(kBlanks), text.size()));
  const std::size_t length = NumberLength(text);
  return length == 0 ? 0 : ParseNumber(text.substr(0, length));
}

double StrictVal(std::string_view text) {
  const std::string trimmed = Trim(text);
  if (trimmed.empty() || NumberLength(trimmed) != trimmed.size()) {
    throw RuntimeError(Fault::TypeMismatch);
  }
  return ParseNumber(trimmed);
}

double AsShown(double value) {
  constexpr double kLargestExact = 0x1p53;
  constexpr int kDigitsAfterTheFirst = 14;
  if (!std::isfinite(value)) throw RuntimeError(Fault::Overflow);
  if (value == std::trunc(value) && std::abs(value) <= kLargestExact) return value;
  std::array<char, 32> digits{};
  const auto written = std::to_chars(digits.data(), digits.data() + digits.size(), value,
                                     std::chars_format::scientific, kDigitsAfterTheFirst);
  double shown = 0;
  // Rounding up the largest doubles can exceed the range.
  if (std::from_chars(digits.data(), written.ptr, shown).ec == std::errc()) return shown;
  throw RuntimeError(Fault::Overflow);
}

std::string Str(double value) {
  const double shown = AsShown(value);
  if (shown == 0) return " 0";  // also for negative zero
  std::array<char, 1 + 17 + 330> digits{};
  const auto result =
      std::to_chars(digits.data(), digits.data() + digits.size(), shown, std::chars_format::fixed);
  const std::string text(digits.data(), result.ptr);
  return value < 0 ? text : " " + text;
}

std::string Trim(std::string_view text) {
  const std::size_t first = text.find_first_not_of(kBlanks);
  if (first == std::string_view::npos) return {};
  return std::string(text.substr(first, text.find_last_not_of(kBlanks) - first + 1));
}

std::string Written(double value) {
  return Written(std::string_view(Decimal(value)));
}

std::string Decimal(double value) {
  return Trim(Str(value));
}

int DigitsOf(std::string_view number) {
  number.remove_prefix(std::min(number.find_first_not_of("+-0"), number.size()));
  if (number.find('.') != std::string_view::npos) {
    number = number.substr(0, number.find_last_not_of('0') + 1);
  }
  return static_cast<int>(std::count_if(number.begin(), number.end(), IsDigit));
}

double Int(double value) {
  return std::floor(value);
}

std::int16_t ToInt16(double value) {
  return RoundTo<std::int16_t>(value);
}

std::int32_t ToInt32(double value) {
  return RoundTo<std::int32_t>(value);
}

}  // namespace numorra
