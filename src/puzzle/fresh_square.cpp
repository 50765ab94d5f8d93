#include "puzzle/fresh_square.h"

#include "app/board/board.h"
#include "generate/normal_square.h"
#include "generate/variable_square.h"
#include "study/relatives.h"

namespace numorra {
namespace {

Puzzle PuzzleOf(int order, std::int64_t total, Rules rules, const std::vector<double>& numbers) {
  Puzzle puzzle{order, total, rules, false, {}};
  for (const double number : numbers)
    puzzle.Cells.push_back(static_cast<std::int64_t>(number));
  return puzzle;
}

}  // namespace

std::optional<Puzzle> FreshSquare(const SquareWish& wish, Random& random, BuildStage& stage) {
  const int n = wish.Order;
  if (!wish.Total && !wish.LimitToNine) {
    std::vector<double> numbers = NumbersOf(NormalSquare(random, stage).Build(n), n);
    if (const auto varied = Varied(n, numbers, random)) numbers = *varied;
    return PuzzleOf(n, NormalTotal(n), Rules::Normal, numbers);
  }
  const auto total = static_cast<double>(wish.Total.value_or(NormalTotal(n)));
  const VariablePlan plan = PlanVariableSquare(n, total, wish.LimitToNine, false);
  VariableSquare builder(random, stage);
  for (int tries = 1; tries <= kTries; ++tries) {
    const VariableBuild build = builder.Build(plan, {}, tries);
    if (build.Status == SolveStatus::CellValueTooSmall) return std::nullopt;
    if (build.Status == SolveStatus::TryAgain) continue;
    return PuzzleOf(n, static_cast<std::int64_t>(build.Total), Rules::Positive,
                    NumbersOf(build.Square, n));
  }
  return std::nullopt;
}

}  // namespace numorra
