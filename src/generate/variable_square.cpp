#include "generate/variable_square.h"

#include <algorithm>

#include "generate/corner_seed.h"
#include "generate/exchange.h"
#include "generate/remainder.h"
#include "generate/size3_square.h"
#include "generate/spreading.h"

namespace numorra {

VariableBuild VariableSquare::Build(const VariablePlan& plan, std::optional<double> corner,
                                    int tries) {
  const int order = plan.GridSize;
  const bool size3 = order == 3;
  VariableBuild build;
  if (!size3 && !corner && plan.BaseValue < plan.TotalRemainder) {
    build.Status = SolveStatus::CellValueTooSmall;
    return build;
  }
  random_.Reseed();
  stage_.ShowCount("");
  TurningSquare flat(order);
  flat.Fill(plan.BaseValue);
  PatternedSquare square(flat, plan.LimitToNine && !corner, 0, random_, stage_);
  if (size3) {
    build.LeftFlat = !BuildSize3Square(square.Square(), plan.BaseValue, random_);
  } else if (corner) {
    const double highest = HighestCorner(order, plan.BaseValue);
    BringCorner(square, plan.BaseValue, static_cast<int>(std::clamp(*corner, 1.0, highest)));
  } else {
    SpreadAll(square, tries);
    if (!SpreadRemainder(square.Square(), plan)) build.Status = SolveStatus::TryAgain;
  }
  build.Square = square.Square().Settled();
  for (int column = 1; column <= order; ++column)
    build.Total += build.Square(1, column);
  build.LastPattern = square.LastPattern();
  build.PassCount = square.PassCount();
  return build;
}

VariableBuild VariableSquare::BuildInTries(const VariablePlan& plan, std::optional<double> corner) {
  VariableBuild build;
  int tries = 1;
  do {
    build = Build(plan, corner, tries);
  } while (build.Status == SolveStatus::TryAgain && ++tries <= kTries);
  return build;
}

void VariableSquare::SpreadAll(PatternedSquare& square, int tries) {
  if (!IsEvenSize(square.Order())) OddSizePass(square);
  if (tries == 1) ThirdCornerPass(square, false);
  SpreadCornerDiagonals(square);
  SpreadCornerEdges(square);
  SpreadRings(square);
}

bool VariableSquare::SpreadRemainder(TurningSquare& square, const VariablePlan& plan) {
  if (plan.TotalRemainder == 0) return true;
  if (IsEvenSize(plan.GridSize)) return SpreadRemainderEven(square, plan.TotalRemainder);
  return SpreadRemainderOdd(square, plan.TotalRemainder, random_);
}

void VariableSquare::BringCorner(PatternedSquare& square, int base, int corner) {
  constexpr int kMaxRounds = 100;
  SeedCorner(square.Square(), base, corner, square.TheRandom());
  int round = 0;
  do {
    SpreadCornerDiagonals(square);
  } while (++round < kMaxRounds && square(1, 1) != corner);
  ThirdCornerPass(square, true);
}

}  // namespace numorra
