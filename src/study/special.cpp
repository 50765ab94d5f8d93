#include "study/special.h"

#include <algorithm>
#include <utility>

#include "app/board/numbers.h"
#include "study/census.h"
#include "study/kept_relatives.h"
#include "study/terms.h"
#include "study/two_digits.h"
#include "words/say.h"

namespace numorra {
namespace {

/// In orders 4k + 2, opposite cells or wrapped diagonals fix the sum of a quarter of the numbers,
/// and this sum is not a whole number (Planck 1919).
std::string QuarterSum(int order) {
  const double numbers = order * order;
  return Say(
      "its sums would make a quarter of the numbers add up to %1, which is not a whole number",
      Written(numbers * (numbers + 1) / 8));
}

bool IsSinglyEven(int order) {
  return order % 4 == 2;
}

// Translators: in this and the next two phrases, %2 says why
constexpr const char* kNoPandiagonal = Mark("no pandiagonal normal square has order %1: %2");
constexpr const char* kNoUltramagic = Mark("no ultramagic normal square has order %1: %2");

std::string WhyNotAssociative(int order) {
  if (!IsSinglyEven(order)) return "";
  return Say("no associative normal square has order %1: %2", order, QuarterSum(order));
}

std::string WhyNotPandiagonal(int order) {
  if (order == 3) {
    return Say(kNoPandiagonal, order,
               Say("the lines through any cell would make it a third of the total, 5"));
  }
  return IsSinglyEven(order) ? Say(kNoPandiagonal, order, QuarterSum(order)) : "";
}

std::string WhyNotMostPerfect(int order) {
  if (order % 4 == 0) return "";
  return Say(
      "no most-perfect normal square has order %1: such squares have an order that is a multiple "
      "of 4",
      order);
}

std::string WhyNotUltramagic(int order) {
  if (order == 4) {
    return Say(kNoUltramagic, order,
               Say("in a pandiagonal one, a number and the one two cells away on a diagonal add up "
                   "to 17, and so opposite ones cannot"));
  }
  if (WhyNotPandiagonal(order).empty()) return "";
  return Say(kNoUltramagic, order,
             Say("it would have to be pandiagonal, and no square of this order is"));
}

std::string WhyNotBordered(int order) {
  constexpr int kSmallest = 5;
  if (order >= kSmallest) return "";
  return Say(
      "no bordered normal square has order %1: there is no magic square of order %2 to put a "
      "border around",
      order, order - 2);
}

/// A relative of the same kind, reached in several random steps.
Square<double> Related(Square<double> square, Random& random) {
  constexpr int kTimes = 4;
  for (int time = 0; time < kTimes; ++time) {
    if (auto varied = VariedWithinKind(square, random)) square = *std::move(varied);
  }
  return square;
}

}  // namespace

const std::array<SpecialKind, 5> kSpecialKinds = {{
    // Translators: kinds of magic squares to choose from in a menu
    {"associative", "Associativex", Mark("&Associative"), WhyNotAssociative, AssociativeSquare},
    {"pandiagonal", "Pandiagonalx", Mark("&Pandiagonal"), WhyNotPandiagonal, PandiagonalSquare},
    {"most-perfect", "MostPerfectx", Mark("&Most-perfect"), WhyNotMostPerfect, MostPerfectSquare},
    {"ultramagic", "Ultramagicx", Mark("&Ultramagic"), WhyNotUltramagic, UltramagicSquare},
    {"bordered", "Borderedx", Mark("&Bordered"), WhyNotBordered, BorderedSquare},
}};

const SpecialKind* FindSpecialKind(const std::string& term) {
  const auto* const found =
      std::find_if(kSpecialKinds.begin(), kSpecialKinds.end(),
                   [&](const SpecialKind& kind) { return kind.Term == term; });
  return found == kSpecialKinds.end() ? nullptr : found;
}

Square<double> PandiagonalSquare(int order, Random& random) {
  if (order % 2 == 0) return MostPerfectSquare(order, random);
  return Related(OddPandiagonal(order, random), random);
}

Square<double> MostPerfectSquare(int order, Random& random) {
  if (order == 4) return AnySquareOfOrder4<JudgeMostPerfect>(random);
  return Related(EvenMostPerfect(order, random), random);
}

Square<double> UltramagicSquare(int order, Random& random) {
  return Related(order % 2 == 0 ? EvenUltramagic(order, random) : OddUltramagic(order, random),
                 random);
}

}  // namespace numorra
