#pragma once

#include <cstdint>
#include <string>
#include <string_view>

/// The program's numbers live as text in the board and in the boxes. These are the only
/// conversions between the two.
namespace numorra {

/// The number that `text` begins with: blanks, a sign, digits with at most one point, no exponent.
/// A text without one reads as 0, so "12e3" is 12 and "abc" is 0. Throws Overflow beyond the
/// range of a double.
double Val(std::string_view text);

/// The whole of `text` as a number, blanks around it allowed. Throws TypeMismatch when anything
/// else stands in it or nothing does.
double StrictVal(std::string_view text);

/// `value` as the program shows it: whole numbers up to 2^53 whole, any other number rounded to 15
/// significant digits, the most that a double always keeps. What is judged is what is shown, so
/// totals and targets are rounded so once, before they are compared.
double AsShown(double value);

/// AsShown(value) as the shortest plain decimal, with one leading blank in the place of the sign
/// when it is not negative: " 12", " 0.5", "-3". Throws Overflow when not finite.
std::string Str(double value);

/// `text` without the blanks at its ends.
std::string Trim(std::string_view text);

/// Str without its leading blank: the form in which numbers stand in the board.
std::string Decimal(double value);

/// The most digits that a number in a cell has, so that the totals of 50 such whole numbers are
/// exact.
inline constexpr int kMostCellDigits = 14;

/// The most digits that the total of 50 such numbers has.
inline constexpr int kMostTotalDigits = 16;

/// How many digits the plain decimal `number` has, zeros in front and behind its point's last digit
/// left out: 3 for "-012.50".
int DigitsOf(std::string_view number);

/// The largest whole number not above `value`.
double Int(double value);

/// `value` rounded to a whole number, halves to the even neighbour; throws Overflow when that does
/// not fit.
std::int16_t ToInt16(double value);
std::int32_t ToInt32(double value);

}  // namespace numorra
