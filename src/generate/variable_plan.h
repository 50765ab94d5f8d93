#pragma once

#include <cstdint>

namespace numorra {

/// Which square of any total is wanted.
struct VariablePlan {
  std::int16_t GridSize = 0;
  std::int16_t BaseValue = 0;       ///< what every cell starts from
  std::int16_t TotalRemainder = 0;  ///< what the lines are raised by at the end
  bool LimitToNine = false;
  double Sum = 0;  ///< the wanted sum, corrected where the rules require it
};

/// Works out the plan for a size of at least 1 and a sum.
///
/// - Under the limit the sum is at most 5 x size, as the cells of a square from 1 to 9 average 5.
/// - Cells start from the sum's share of one cell, at least 2; a smaller sum becomes 2 x size.
/// - What the sum is more than a multiple of the size is the remainder, left out with a corner
/// value
///   or under the limit.
///
/// With a corner value the limit does not apply. Throws Overflow where 16 bits do not hold a
/// number.
VariablePlan PlanVariableSquare(double size, double sum, bool limitToNine, bool corner);

}  // namespace numorra
