#include "study/terms.h"

#include <algorithm>
#include <stdexcept>

namespace numorra {
namespace {

const Term& TermNamed(const std::string& name) {
  const auto& terms = Terms();
  const auto found =
      std::find_if(terms.begin(), terms.end(), [&](const Term& term) { return term.Name == name; });
  if (found == terms.end()) throw std::out_of_range("there is no term " + name);
  return *found;
}

}  // namespace

const std::vector<Term>& Terms() {
  constexpr const char* kLines = "Lines";
  constexpr const char* kDiagonals = "Diagonals";
  constexpr const char* kPairs = "Pairs and blocks";
  constexpr const char* kPowers = "Powers";
  constexpr const char* kRings = "Rings";
  constexpr const char* kNumbers = "Numbers";
  constexpr const char* kProducts = "Products";
  constexpr const char* kPlaces = "Digits and moves";
  constexpr const char* kOthers = "Other squares";
  static const std::vector<Term> terms = {
      {"semi-magic", kLines, "all rows and columns add up to one total", JudgeSemiMagic},
      {"magic", kLines, "semi-magic, and both main diagonals add up to the same total", JudgeMagic},
      {"normal", kNumbers, "each of the numbers 1 to n x n occurs once", JudgeNormal},
      {"distinct", kNumbers, "no number occurs twice", JudgeDistinct},
      {"consecutive", kNumbers,
       "distinct, and in ascending order each number is 1 more than the last", JudgeConsecutive},
      {"associative", kPairs,
       "every number and the one opposite it through the centre have the same sum",
       JudgeAssociative},
      {"pandiagonal", kDiagonals, "semi-magic, and all 2n wrapped diagonals add up to the total",
       JudgePandiagonal},
      {"semi-pandiagonal", kDiagonals,
       "of order 4, and the two broken diagonals half-way between "
       "the main ones add up to the total",
       JudgeSemiPandiagonal},
      {"ultramagic", kDiagonals, "magic, associative and pandiagonal", JudgeUltramagic},
      {"compact", kPairs,
       "of even order, and every wrapped 2 x 2 block adds up to 4/n of the total", JudgeCompact},
      {"complete", kPairs,
       "of even order, and all pairs n/2 apart on a wrapped diagonal have the same sum",
       JudgeComplete},
      {"most-perfect", kPairs, "of an order that is a multiple of 4, normal, compact and complete",
       JudgeMostPerfect},
      {"bimagic", kPowers, "magic, and so are the squares of the numbers", JudgeBimagic},
      {"trimagic", kPowers, "bimagic, and so are the cubes of the numbers", JudgeTrimagic},
      {"concentric", kRings, "of order 5 or more, and the square inside every ring is magic",
       JudgeConcentric},
      {"bordered", kRings, "concentric, and the numbers inside every ring are consecutive",
       JudgeBordered},
      {"self-complementary", kPairs,
       "replacing every number by largest + smallest - number gives an image of "
       "the square",
       JudgeSelfComplementary},
      {"heterosquare", kOthers, "no two rows, columns or main diagonals have the same sum",
       JudgeHeterosquare},
      {"antimagic", kOthers, "a heterosquare whose sums are consecutive", JudgeAntimagic},
      {"latin", kOthers, "n different numbers, each once in every row and column", JudgeLatin},
      {"prime", kNumbers, "all numbers are primes", JudgePrime},
      {"arithmetic progression", kNumbers,
       "distinct, and in ascending order each number is more than the last by one step",
       JudgeArithmeticProgression},
      {"zero-centred", kNumbers,
       "the negative of every number occurs as often as the number, so all of them add up to 0",
       JudgeZeroCentred},
      {"Franklin", kPairs,
       "of an order from 8 on that is a multiple of 4, semi-magic and compact; half rows and half "
       "columns add up to half of the total, and all 4n wrapped bent rows to the total",
       JudgeFranklin},
      {"knight's tour", kPlaces,
       "consecutive, and in ascending order each number is a knight's move from the last",
       JudgeKnightsTour},
      {"regular", kPlaces,
       "normal, and each of the two digits, to the base n, of the numbers less 1 makes a latin "
       "square",
       JudgeRegular},
      {"multiplicative", kProducts,
       "all rows, columns and both main diagonals have one product, which is not 0",
       JudgeMultiplicative},
      {"addition-multiplication", kProducts, "magic and multiplicative",
       JudgeAdditionMultiplication},
  };
  return terms;
}

Judgement SumsTooLarge() {
  return TooLarge("the numbers have too many digits to be added exactly");
}

Judgement All(const Facts& facts, std::initializer_list<const char*> needed, Judgement reached) {
  for (const char* const name : needed) {
    Judgement part = TermNamed(name).Judge(facts);
    if (part) continue;
    part.Why = (part.Says == Answer::Fails ? "not " + std::string(name) + ": " : "") + part.Why;
    return part;
  }
  return reached;
}

}  // namespace numorra
