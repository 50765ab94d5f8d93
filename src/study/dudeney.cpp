#include "study/dudeney.h"

#include <algorithm>
#include <utility>

#include "study/images.h"
#include "words/say.h"

namespace numorra {
namespace {

/// The twelve patterns, each in its image that comes first in the alphabet.
constexpr std::pair<const char*, const char*> kPatterns[] = {
    {"ABCDEFGHCDABGHEF", "I"},
    {"ABCDBADCEFGHFEHG", "II"},
    {"ABCDEFGHHGFEDCBA", "III"},
    // Translators: types of squares of order 4, with Roman numerals
    {"AABBCCDDEEFFGGHH", Mark("IV or V")},
    {"ABABCDCDEFEFGHGH", Mark("IV or V")},
    {"ABBACDDCEFFEGHHG", "VI"},
    {"AABBCDDCEFFEGGHH", Mark("VII to X")},
    {"ABABCDDCEFFEGHGH", Mark("VII to X")},
    {"ABBACCDDEEFFGHHG", Mark("VII to X")},
    {"ABBACDCDEFEFGHHG", Mark("VII to X")},
    {"AABBCDEFGGHHDCFE", Mark("XI or XII")},
    {"ABABCDCDEFGHGHEF", Mark("XI or XII")}};

/// A letter for each cell, in reading order: the same for both numbers of a pair, and a new one for
/// the first of them.
std::string LettersOf(const Square<double>& square) {
  constexpr double kPairSum = 17;
  std::string letters;
  char next = 'A';
  for (const double number : square) {
    const auto partner = std::find(square.begin(), square.end(), kPairSum - number);
    const auto at = static_cast<std::size_t>(partner - square.begin());
    letters += at < letters.size() ? letters[at] : next++;
  }
  return letters;
}

}  // namespace

ComplementPairs ComplementPairsOf(const Square<double>& square) {
  ComplementPairs found;
  std::string first = LettersOf(square);
  for (std::size_t row = 0; row < first.size(); row += 4)
    found.Pairs += (row > 0 ? " / " : "") + first.substr(row, 4);
  for (int image = 1; image < kImages; ++image)
    first = std::min(first, LettersOf(ImageOf(image, square)));
  for (const auto& [pattern, type] : kPatterns) {
    if (first == pattern) found.Type = type;
  }
  return found;
}

}  // namespace numorra
