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

/// The shortest plain decimal that reads back as `value`, with one leading blank in the place of
/// the sign when it is not negative: " 12", " 0.5", "-3". Throws Overflow when not finite.
std::string Str(double value);

/// `text` without the blanks at its ends.
std::string Trim(std::string_view text);

/// Str without its leading blank: the form in which numbers stand in the board.
std::string Decimal(double value);

/// The largest whole number not above `value`.
double Int(double value);

/// `value` rounded to a whole number, halves to the even neighbour; throws Overflow when that does
/// not fit.
std::int16_t ToInt16(double value);
std::int32_t ToInt32(double value);

}  // namespace numorra
