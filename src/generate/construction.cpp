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

std::vector<WalkStep> WalkOf(const Square<double>& square) {
  if (WhyNoBoardHas(square.Order())) return {};
  const PlacedNumbers placed(square);
  if (!placed.IsNormal()) return {};
  for (const Construction* const construction : kConstructions) {
    if (!construction->Makes(square.Order())) continue;
    if (std::vector<WalkStep> steps = construction->StepsOf(placed); !steps.empty()) return steps;
  }
  return {};
}

Square<double> ExampleToWalk(int order) {
  BuildChoices firstOfAll;
  return SquareOf(ConstructionFor(order).Build(order, firstOfAll), order);
}

}  // namespace numorra
