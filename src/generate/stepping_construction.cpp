#include <string>
#include <utility>

#include "app/board/orders.h"
#include "generate/construction.h"
#include "generate/stepping.h"
#include "generate/stepping_moves.h"

namespace numorra {
namespace {

/// Builds the square of one of all starts that make it magic (generate/stepping.h).
CellTable BuildByStepping(int order, BuildChoices& choices) {
  choices.StartCount();
  const auto starts = FindMagicStarts(order, static_cast<double>(NormalTotal(order)));
  choices.Count(2 * order * order);
  const auto pick = static_cast<std::size_t>(choices.PickOf(static_cast<int>(starts.size())));
  const SteppingAttempt& start = starts[pick];
  CellTable cells;
  FillByStepping(cells, order, start.StartRow, start.StartColumn, kSteppings[start.Pattern]);
  return cells;
}

/// One number per step. Recognises turned and mirrored squares, too.
std::vector<WalkStep> StepsOfStepping(const PlacedNumbers& square) {
  const auto moves = MovesOf(square);
  if (!moves) return {};
  const int n = square.Order();
  std::vector<WalkStep> walk;
  for (int number = 1; number <= n * n; ++number) {
    const Place here = square.PlaceOf(number);
    WalkStep step{{{here, std::to_string(number)}}, {here}, {}, {}, number};
    if (number > 1) step.Arrow = {square.PlaceOf(number - 1), here};
    step.Sentence = MoveSentence(square, *moves, number);
    walk.push_back(std::move(step));
  }
  return walk;
}

}  // namespace

const Construction kSteppingConstruction = {"stepping",
                                            [](int order) { return order > 0 && order % 2 == 1; },
                                            BuildByStepping, StepsOfStepping};

}  // namespace numorra
