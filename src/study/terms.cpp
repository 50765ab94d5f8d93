#include "study/terms.h"

#include <algorithm>
#include <stdexcept>

#include "words/say.h"

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
  static constexpr TermGroup kLines{Mark("Lines")};
  static constexpr TermGroup kDiagonals{Mark("Diagonals")};
  static constexpr TermGroup kPairs{Mark("Pairs and blocks")};
  static constexpr TermGroup kPowers{Mark("Powers")};
  static constexpr TermGroup kRings{Mark("Rings")};
  static constexpr TermGroup kNumbers{Mark("Numbers"), false};
  static constexpr TermGroup kProducts{Mark("Products"), false};
  static constexpr TermGroup kPlaces{Mark("Digits and moves"), false};
  static constexpr TermGroup kOthers{Mark("Other squares"), false};
  static const std::vector<Term> terms = {
      // Translators: terms stand in sentences such as "not magic: row 1 adds up to 9, not 15", and
      // before their definitions
      {Mark("semi-magic"), &kLines, Mark("all rows and columns add up to one total"),
       JudgeSemiMagic},
      {Mark("magic"), &kLines, Mark("semi-magic, and both main diagonals add up to the same total"),
       JudgeMagic},
      {Mark("normal"), &kNumbers, Mark("each of the numbers 1 to n x n occurs once"), JudgeNormal},
      {Mark("distinct"), &kNumbers, Mark("no number occurs twice"), JudgeDistinct},
      {Mark("consecutive"), &kNumbers,
       Mark("distinct, and in ascending order each number is 1 more than the last"),
       JudgeConsecutive},
      {Mark("associative"), &kPairs,
       Mark("every number and the one opposite it through the centre have the same sum"),
       JudgeAssociative},
      {Mark("pandiagonal"), &kDiagonals,
       Mark("semi-magic, and all 2n wrapped diagonals add up to the total"), JudgePandiagonal},
      {Mark("semi-pandiagonal"), &kDiagonals,
       Mark("of order 4, and the two broken diagonals half-way between the main ones add up to the "
            "total"),
       JudgeSemiPandiagonal},
      {Mark("ultramagic"), &kDiagonals, Mark("magic, associative and pandiagonal"),
       JudgeUltramagic},
      {Mark("compact"), &kPairs,
       Mark("of even order, and every wrapped 2 x 2 block adds up to 4/n of the total"),
       JudgeCompact},
      {Mark("complete"), &kPairs,
       Mark("of even order, and all pairs n/2 apart on a wrapped diagonal have the same sum"),
       JudgeComplete},
      {Mark("most-perfect"), &kPairs,
       Mark("of an order that is a multiple of 4, normal, compact and complete"), JudgeMostPerfect},
      {Mark("bimagic"), &kPowers, Mark("magic, and so are the squares of the numbers"),
       JudgeBimagic},
      {Mark("trimagic"), &kPowers, Mark("bimagic, and so are the cubes of the numbers"),
       JudgeTrimagic},
      {Mark("concentric"), &kRings,
       Mark("of order 5 or more, and the square inside every ring is magic"), JudgeConcentric},
      {Mark("bordered"), &kRings,
       Mark("concentric, and the numbers inside every ring are consecutive"), JudgeBordered},
      {Mark("self-complementary"), &kPairs,
       Mark("replacing every number by largest + smallest - number gives an image of the square"),
       JudgeSelfComplementary},
      {Mark("heterosquare"), &kOthers,
       Mark("no two rows, columns or main diagonals have the same sum"), JudgeHeterosquare},
      {Mark("antimagic"), &kOthers, Mark("a heterosquare whose sums are consecutive"),
       JudgeAntimagic},
      {Mark("latin"), &kOthers, Mark("n different numbers, each once in every row and column"),
       JudgeLatin},
      {Mark("prime"), &kNumbers, Mark("all numbers are primes"), JudgePrime},
      {Mark("arithmetic progression"), &kNumbers,
       Mark("distinct, and in ascending order each number is more than the last by one step"),
       JudgeArithmeticProgression},
      {Mark("zero-centred"), &kNumbers,
       Mark("the negative of every number occurs as often as the number, so all of them add up to "
            "0"),
       JudgeZeroCentred},
      {Mark("Franklin"), &kPairs,
       Mark("of an order from 8 on that is a multiple of 4, semi-magic and compact; half rows and "
            "half columns add up to half of the total, and all 4n wrapped bent rows to the total"),
       JudgeFranklin},
      {Mark("knight's tour"), &kPlaces,
       Mark("consecutive, and in ascending order each number is a knight's move from the last"),
       JudgeKnightsTour},
      {Mark("regular"), &kPlaces,
       Mark("normal, and each of the two digits, to the base n, of the numbers less 1 makes a "
            "latin square"),
       JudgeRegular},
      {Mark("multiplicative"), &kProducts,
       Mark("all rows, columns and both main diagonals have one product, which is not 0"),
       JudgeMultiplicative},
      {Mark("addition-multiplication"), &kProducts, Mark("magic and multiplicative"),
       JudgeAdditionMultiplication},
  };
  return terms;
}

Judgement SumsTooLarge() {
  return TooLarge(Say("the numbers have too many digits to be added exactly"));
}

Judgement All(const Facts& facts, std::initializer_list<const char*> needed, Judgement reached) {
  for (const char* const name : needed) {
    Judgement part = TermNamed(name).Judge(facts);
    if (part) continue;
    // Translators: "not magic: row 1 adds up to 9, not 15"; %1 is a term, and %2 says why
    if (part.Says == Answer::Fails) part.Why = Say("not %1: %2", Say(name), part.Why);
    return part;
  }
  return reached;
}

}  // namespace numorra
