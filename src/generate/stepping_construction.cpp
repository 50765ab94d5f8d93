#include <string>

#include "app/board/orders.h"
#include "generate/construction.h"
#include "generate/stepping.h"
#include "generate/stepping_moves.h"
#include "words/say.h"

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
  return moves && IsDiagonal(*moves) ? StepsByMoves(square, *moves) : std::vector<WalkStep>();
}

}  // namespace

const Construction kSteppingConstruction = {
    "stepping",
    "BuildSteppingx",
    Mark("&Stepping"),
    Mark("Simon de la Loubère, 1691, who had seen it in Siam"),
    [](int order) -> std::string {
      if (order > 0 && order % 2 == 1) return {};
      return Say("stepping makes odd orders, not %1", order);
    },
    BuildByStepping,
    StepsOfStepping};

}  // namespace numorra
