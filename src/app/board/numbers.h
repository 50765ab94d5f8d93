#pragma once

#include <cstdint>
#include <string>
#include <string_view>

/// The board and the boxes hold numbers as text. All conversions between the two are here.
namespace numorra {

/// The number at the start of `text`: blanks, a sign, digits with at most one point, no exponent. A
/// text without one reads as 0; "12e3" is 12 and "abc" is 0. Throws Overflow beyond the range of a
/// double.
double Val(std::string_view text);

/// The whole of `text` as a number; blanks around it are allowed. Throws TypeMismatch if it
/// contains anything else, or no number.
double StrictVal(std::string_view text);

/// `value` as the program shows it: whole numbers up to 2^53 in full, all others rounded to 15
/// significant digits, the most that a double always keeps. The program judges what it shows, so
/// totals and targets are rounded this way once, before they are compared.
double AsShown(double value);

/// AsShown(value) as the shortest plain decimal, with a leading blank instead of a sign if it is
/// not negative: " 12", " 0.5", "-3". Throws Overflow if it is not finite.
std::string Str(double value);

/// `text` without leading and trailing blanks.
std::string Trim(std::string_view text);

/// Str without its leading blank: the form of numbers on the board.
std::string Decimal(double value);

/// Decimal(value) as the reader's language writes it in a sentence.
std::string Written(double value);

/// The most digits of a number in a cell; the totals of 50 such whole numbers are exact.
inline constexpr int kMostCellDigits = 14;

/// The most digits of the total of 50 such numbers.
inline constexpr int kMostTotalDigits = 16;

/// The number of digits of the plain decimal `number`, without leading zeros and without trailing
/// zeros after the point: 3 for "-012.50".
int DigitsOf(std::string_view number);

/// The largest whole number not above `value`.
double Int(double value);

/// `value` rounded to a whole number, halves to even; throws Overflow if it does not fit.
std::int16_t ToInt16(double value);
std::int32_t ToInt32(double value);

}  // namespace numorra
