#include "puzzle/fresh_square.h"

#include "app/board/board.h"
#include "generate/mixed_square.h"
#include "generate/random_square.h"
#include "generate/variable_square.h"
#include "study/census.h"
#include "study/images.h"

namespace numorra {
namespace {

Square<double> FreshNormalSquare(int order, Random& random, Yielding& yielding) {
  switch (order) {
    case 3:
      return ImageOf(random.Between(0, kImages - 1), {3, {8, 1, 6, 3, 5, 7, 4, 9, 2}});
    case 4:
      return AnySquareOfOrder4(random);
    default:
      return Square<double>(RandomNormalSquare(order, random, yielding));
  }
}

Puzzle PuzzleOf(const Square<double>& square, std::int64_t total, Rules rules) {
  return {Square<std::int64_t>(square), total, rules};
}

}  // namespace

std::optional<Puzzle> FreshSquare(const SquareWish& wish, Random& random, Yielding& yielding) {
  const int n = wish.Order;
  if (!wish.Total && !wish.LimitToNine) {
    return PuzzleOf(FreshNormalSquare(n, random, yielding), NormalTotal(n), Rules::Normal);
  }
  const auto total = static_cast<double>(wish.Total.value_or(NormalTotal(n)));
  const VariablePlan plan = PlanVariableSquare(n, total, wish.LimitToNine, false);
  SilentStage stage(&yielding);
  const VariableBuild build = VariableSquare(random, stage).BuildInTries(plan, {});
  if (build.Status != SolveStatus::Built) return std::nullopt;
  CellTable mixed = MixedSquare(build.Square, n, plan.LimitToNine, random, yielding);
  if (wish.ManySmallNumbers) {
    mixed = WithSmallNumbers(mixed, n, plan.LimitToNine, random, yielding);
  }
  return PuzzleOf(SquareOf(mixed, n), static_cast<std::int64_t>(build.Total), Rules::Positive);
}

}  // namespace numorra
