#pragma once

#include <vector>

#include "study/facts.h"

namespace numorra {

/// What terms are about, a phrase.
struct TermGroup {
  const char* Name;
  bool Relates = true;  ///< numbers to each other; relatives of a square keep such terms
};

/// A term for squares, as this program defines it. Authors differ on some; the definition says what
/// is judged. Name and definition are phrases, to be said where they are shown; programs read the
/// name as it is.
struct Term {
  const char* Name;
  const TermGroup* Group;
  const char* Definition;
  Judgement (*Judge)(const Facts& facts);
};

/// All terms, in the order of reports.
const std::vector<Term>& Terms();

// Terms of the lines' sums.
Judgement JudgeSemiMagic(const Facts& facts);
Judgement JudgeMagic(const Facts& facts);
Judgement JudgePandiagonal(const Facts& facts);
Judgement JudgeSemiPandiagonal(const Facts& facts);
Judgement JudgeBimagic(const Facts& facts);
Judgement JudgeTrimagic(const Facts& facts);
Judgement JudgeHeterosquare(const Facts& facts);
Judgement JudgeAntimagic(const Facts& facts);

// Terms of the numbers.
Judgement JudgeNormal(const Facts& facts);
Judgement JudgeDistinct(const Facts& facts);
Judgement JudgeConsecutive(const Facts& facts);
Judgement JudgeArithmeticProgression(const Facts& facts);
Judgement JudgeZeroCentred(const Facts& facts);
Judgement JudgeLatin(const Facts& facts);
Judgement JudgePrime(const Facts& facts);

// Terms of the arrangement of the numbers.
Judgement JudgeAssociative(const Facts& facts);
Judgement JudgeSelfComplementary(const Facts& facts);
Judgement JudgeCompact(const Facts& facts);
Judgement JudgeComplete(const Facts& facts);
Judgement JudgeMostPerfect(const Facts& facts);
Judgement JudgeUltramagic(const Facts& facts);
Judgement JudgeConcentric(const Facts& facts);
Judgement JudgeBordered(const Facts& facts);
Judgement JudgeFranklin(const Facts& facts);
Judgement JudgeKnightsTour(const Facts& facts);
Judgement JudgeRegular(const Facts& facts);

// Terms of the lines' products.
Judgement JudgeMultiplicative(const Facts& facts);
Judgement JudgeAdditionMultiplication(const Facts& facts);

/// The judgement of a square whose sums are too large to be exact.
Judgement SumsTooLarge();

/// The first of the terms `needed`, by name, that does not hold, worded as what is missing;
/// otherwise `reached`. Throws std::out_of_range for a name that no term has.
Judgement All(const Facts& facts, std::initializer_list<const char*> needed, Judgement reached);

}  // namespace numorra
