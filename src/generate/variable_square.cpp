#include "generate/variable_square.h"

#include "generate/exchange.h"
#include "generate/remainder.h"
#include "generate/size3_square.h"

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
  order_.Clear();
  PassCount = 0;
  stage_.ShowCount("");
  TurningSquare flat(order);
  flat.Fill(plan.BaseValue);
  Spreading spreading(flat, plan.LimitToNine && !corner, PassCount, random_, stage_);
  if (size3) {
    build.LeftFlat = !BuildSize3Square(spreading.BoardValues, plan.BaseValue, random_);
  } else if (corner) {
    BringCorner(spreading, plan.BaseValue, *corner);
  } else {
    SpreadAll(spreading, tries);
    if (!SpreadRemainder(spreading.BoardValues, plan)) build.Status = SolveStatus::TryAgain;
  }
  build.Square = spreading.BoardValues.Settled();
  for (int column = 1; column <= order; ++column)
    build.Total += build.Square(1, column);
  build.LastFlags = spreading.CellFlags;
  return build;
}

void VariableSquare::SpreadAll(Spreading& spreading, int tries) {
  if (!IsEvenSize(spreading.BoardValues.Order())) OddSizePass(spreading, order_);
  if (tries == 1) ThirdCornerPass(spreading, order_);
  spreading.SpreadCornerDiagonals();
  spreading.SpreadCornerEdges();
  spreading.SpreadRings();
}

bool VariableSquare::SpreadRemainder(TurningSquare& square, const VariablePlan& plan) {
  if (plan.TotalRemainder == 0) return true;
  if (IsEvenSize(plan.GridSize)) return SpreadRemainderEven(square, plan.TotalRemainder);
  return SpreadRemainderOdd(square, plan.TotalRemainder, random_);
}

void VariableSquare::BringCorner(Spreading& spreading, double base, double corner) {
  constexpr int kMaxRounds = 100;
  SeedCorner(spreading, base, corner);
  int round = 0;
  do {
    spreading.SpreadCornerDiagonals();
  } while (++round < kMaxRounds && spreading.BoardValues(1, 1) != corner);
  ThirdCornerPass(spreading, order_);
}

}  // namespace numorra
