#include "generate/variable_plan.h"

#include <algorithm>

#include "app/board/numbers.h"
#include "app/board/orders.h"

namespace numorra {

VariablePlan PlanVariableSquare(double size, double sum, bool limitToNine, bool corner) {
  constexpr int kHighestAverage = 5;
  VariablePlan plan{.GridSize = ToInt16(size), .LimitToNine = limitToNine && !corner, .Sum = sum};
  if (plan.LimitToNine) {
    plan.Sum = std::min<double>(plan.Sum, ToInt16(kHighestAverage * plan.GridSize));
  }
  if (Int(plan.Sum / size) < kLowestBase) plan.Sum = kLowestBase * size;
  const double share = BaseOf(plan.Sum, size);
  plan.BaseValue = ToInt16(share);
  if (!corner && !plan.LimitToNine) plan.TotalRemainder = ToInt16(plan.Sum - size * share);
  return plan;
}

}  // namespace numorra
