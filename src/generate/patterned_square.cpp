#include "generate/patterned_square.h"

#include <algorithm>
#include <limits>

#include "app/board/board.h"
#include "app/board/numbers.h"
#include "app/board/runtime_error.h"

namespace numorra {

void PatternedSquare::Apply(const Pattern& pattern, int factor) {
  if (passCount_ == std::numeric_limits<std::int32_t>::max()) throw RuntimeError(Fault::Overflow);
  ++passCount_;
  last_ = pattern;
  const bool forbidden =
      limitToNine_ && std::any_of(pattern.begin(), pattern.end(), [&](const FlaggedCell& cell) {
        return square_(cell.Row, cell.Column) + factor * cell.Weight > kHighestLimited;
      });
  if (!forbidden) {
    for (const FlaggedCell& cell : pattern)
      square_(cell.Row, cell.Column) += factor * cell.Weight;
  }
  stage_.ShowCount(passCount_);
  stage_.Yield();
}

int PatternedSquare::RandomFactor(const Pattern& pattern) {
  constexpr double kNoMinimum = 9999;
  constexpr double kDepth = 2;  // the largest decrease of a cell per unit of the factor
  double smallest = kNoMinimum;
  for (const FlaggedCell& cell : pattern) {
    if (cell.Weight < 0) smallest = std::min(smallest, square_(cell.Row, cell.Column));
  }
  if (smallest == 1) return 0;
  const double highest = smallest / kDepth - 1;
  const int factor = ToInt16(std::min(1 + random_.Next() * highest, highest));
  return limitToNine_ && ExceedsNine(pattern, factor) ? 0 : factor;
}

void PatternedSquare::ApplyBothSigns(Pattern pattern) {
  Apply(pattern, RandomFactor(pattern));
  pattern.Negate();
  Apply(pattern, RandomFactor(pattern));
}

/// Whether any cell of the board, in the pattern or not, would exceed 9.
bool PatternedSquare::ExceedsNine(const Pattern& pattern, int factor) const {
  TurningSquare after = square_;
  for (const FlaggedCell& cell : pattern)
    after(cell.Row, cell.Column) += factor * cell.Weight;
  bool exceeds = false;
  ForEachCell(after.Order(), [&](int r, int c) { exceeds |= after(r, c) > kHighestLimited; });
  return exceeds;
}

}  // namespace numorra
