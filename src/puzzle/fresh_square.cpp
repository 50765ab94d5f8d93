#include "puzzle/fresh_square.h"

#include "app/board/board.h"
#include "generate/mixed_square.h"
#include "generate/random_square.h"
#include "generate/variable_square.h"
#include "study/census.h"
#include "study/images.h"

namespace numorra {
namespace {

Puzzle PuzzleOf(int order, std::int64_t total, Rules rules, const std::vector<double>& numbers) {
  Puzzle puzzle{order, total, rules, false, {}};
  for (const double number : numbers)
    puzzle.Cells.push_back(static_cast<std::int64_t>(number));
  return puzzle;
}

std::vector<double> FreshNormalSquare(int order, Random& random, BuildStage& stage) {
  switch (order) {
    case 3:
      return ImageOf(random.Between(0, kImages - 1), order, {8, 1, 6, 3, 5, 7, 4, 9, 2});
    case 4:
      return AnySquareOfOrder4(random);
    default: {
      const std::vector<int> numbers = RandomNormalSquare(order, random, stage);
      return {numbers.begin(), numbers.end()};
    }
  }
}

}  // namespace

std::optional<Puzzle> FreshSquare(const SquareWish& wish, Random& random, BuildStage& stage) {
  const int n = wish.Order;
  if (!wish.Total && !wish.LimitToNine) {
    return PuzzleOf(n, NormalTotal(n), Rules::Normal, FreshNormalSquare(n, random, stage));
  }
  const auto total = static_cast<double>(wish.Total.value_or(NormalTotal(n)));
  const VariablePlan plan = PlanVariableSquare(n, total, wish.LimitToNine, false);
  VariableSquare builder(random, stage);
  for (int tries = 1; tries <= kTries; ++tries) {
    const VariableBuild build = builder.Build(plan, {}, tries);
    if (build.Status == SolveStatus::CellValueTooSmall) return std::nullopt;
    if (build.Status == SolveStatus::TryAgain) continue;
    const CellTable mixed = MixedSquare(build.Square, n, plan.LimitToNine, random, stage);
    return PuzzleOf(n, static_cast<std::int64_t>(build.Total), Rules::Positive,
                    NumbersOf(mixed, n));
  }
  return std::nullopt;
}

}  // namespace numorra
