#include "puzzle/fresh_square.h"

#include "app/board/board.h"
#include "generate/normal_square.h"
#include "generate/variable_square.h"
#include "study/relatives.h"

namespace numorra {
namespace {

Puzzle PuzzleOf(const Square<double>& square, std::int64_t total, Rules rules) {
  return {Square<std::int64_t>(square), total, rules};
}

}  // namespace

std::optional<Puzzle> FreshSquare(const SquareWish& wish, Random& random, Yielding& yielding) {
  const int n = wish.Order;
  SilentStage stage(&yielding);
  if (!wish.Total && !wish.LimitToNine) {
    const Square<double> square = SquareOf(NormalSquare(random, stage).Build(n), n);
    return PuzzleOf(Varied(square, random).value_or(square), NormalTotal(n), Rules::Normal);
  }
  const auto total = static_cast<double>(wish.Total.value_or(NormalTotal(n)));
  const VariablePlan plan = PlanVariableSquare(n, total, wish.LimitToNine, false);
  const VariableBuild build = VariableSquare(random, stage).BuildInTries(plan, {});
  if (build.Status != SolveStatus::Built) return std::nullopt;
  return PuzzleOf(SquareOf(build.Square, n), static_cast<std::int64_t>(build.Total),
                  Rules::Positive);
}

}  // namespace numorra
