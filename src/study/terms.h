#pragma once

#include <vector>

#include "study/facts.h"

namespace numorra {

/// A word that the field has for squares, as this program understands it. Authors differ on some:
/// the definition says what is judged.
struct Term {
  const char* Name;
  const char* Group;
  const char* Definition;
  Judgement (*Judge)(const Facts& facts);
};

/// All terms, group by group.
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
Judgement JudgeLatin(const Facts& facts);
Judgement JudgePrime(const Facts& facts);

// Terms of where numbers stand to each other.
Judgement JudgeAssociative(const Facts& facts);
Judgement JudgeSelfComplementary(const Facts& facts);
Judgement JudgeCompact(const Facts& facts);
Judgement JudgeComplete(const Facts& facts);
Judgement JudgeMostPerfect(const Facts& facts);
Judgement JudgeUltramagic(const Facts& facts);
Judgement JudgeConcentric(const Facts& facts);
Judgement JudgeBordered(const Facts& facts);

/// What is said of a square whose sums are too large to be exact.
Judgement SumsTooLarge();

/// The first of the terms `needed`, by name, that does not hold, said as what `facts` lack for the
/// term; else `reached`. A name that no term has throws std::out_of_range.
Judgement All(const Facts& facts, std::initializer_list<const char*> needed, Judgement reached);

}  // namespace numorra
