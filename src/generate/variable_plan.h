#pragma once

#include <cstdint>

namespace numorra {

/// The plan for a square of any total.
struct VariablePlan {
  std::int16_t GridSize = 0;
  std::int16_t BaseValue = 0;       ///< start value of every cell
  std::int16_t TotalRemainder = 0;  ///< added to every line at the end
  bool LimitToNine = false;
  double Sum = 0;  ///< the wanted sum, corrected if the rules require it
};

/// Makes the plan for a size of at least 1 and a sum.
///
/// - Under the limit, the sum is at most 5 x size, because cells from 1 to 9 average 5.
/// - Cells start from the sum's share of one cell, at least 2; a smaller sum becomes 2 x size.
/// - The remainder is the excess of the sum over a multiple of the size; it is left out with a
///   corner value or under the limit.
///
/// With a corner value, the limit does not apply. Throws Overflow if a number does not fit into 16
/// bits.
VariablePlan PlanVariableSquare(double size, double sum, bool limitToNine, bool corner);

}  // namespace numorra
