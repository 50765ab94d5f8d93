#pragma once

#include <string>
#include <variant>
#include <vector>

#include "files/stored_square.h"
#include "words/say.h"

namespace numorra {

/// What a puzzle code says before its meaning is known: a version and a number in base 32.
struct CodeText {
  int Version = 2;
  std::vector<unsigned> Digits;  ///< 0 to 31, the first one of the highest power
};

/// The code of version 2: "NP2", a character for the length, the digits, two check characters.
///
/// Digits are written as the 32 digits and letters without I, L, O and U (Crockford's alphabet).
/// The length is the number of all characters of the code, modulo 32. The characters are the
/// coefficients of a polynomial over the field of 32 elements, which the check characters make
/// divisible by x^2 + x + 8, a primitive polynomial of order 1023 (cyclic codes for error
/// detection: Peterson and Brown 1961). So these mistakes always show as long as the version is
/// right: one wrong character; two less than 33 places apart; two characters exchanged, up to 1022
/// places apart; and, by the length, up to 31 characters lost or added. Of other mistakes, less
/// than one in 1000 does not show.
std::string CodeOfDigits(const std::vector<unsigned>& digits);

/// Reads a code of version 2, or of version 1, which has one check character and no length.
/// Capitals or not; I and L are read as 1 and O as 0; spaces, line ends and hyphens are passed
/// over. Or says what is wrong.
std::variant<CodeText, Unreadable> ReadCodeText(const std::string& code);

/// What is said of a code with a mistake that cannot be named.
inline constexpr const char* kBrokenCode = Mark("this puzzle code has a mistake in it");

}  // namespace numorra
