#include "generate/construction.h"

#include <algorithm>

#include "app/board/board.h"
#include "app/board/orders.h"
#include "app/board/runtime_error.h"

namespace numorra {

const Construction& ConstructionFor(int order) {
  const auto* const found = std::find_if(kConstructions.begin(), kConstructions.end(),
                                         [&](const auto* one) { return one->Makes(order); });
  if (found == kConstructions.end()) throw RuntimeError(Fault::InvalidPropertyValue);
  return **found;
}

std::vector<WalkStep> WalkOf(int order, const std::vector<double>& numbers) {
  if (WhyNoBoardHas(order)) return {};
  const PlacedNumbers square(order, numbers);
  if (!square.IsNormal()) return {};
  for (const Construction* const construction : kConstructions) {
    if (!construction->Makes(order)) continue;
    if (std::vector<WalkStep> steps = construction->StepsOf(square); !steps.empty()) return steps;
  }
  return {};
}

std::vector<double> ExampleToWalk(int order) {
  BuildChoices firstOfAll;
  return NumbersOf(ConstructionFor(order).Build(order, firstOfAll), order);
}

}  // namespace numorra
