#include "generate/normal_square.h"

#include <limits>

#include "app/board/numbers.h"
#include "app/board/runtime_error.h"
#include "generate/blocks.h"
#include "generate/proposal.h"
#include "generate/stepping.h"
#include "transform/turning_square.h"

namespace numorra {
namespace {

/// The most attempts that the odd search remembers.
constexpr std::size_t kMaxAttempts = 501;

/// How often another attempt than the last is picked; more than any working random source needs.
constexpr int kMaxPicks = 1000;

}  // namespace

CellTable NormalSquare::Build(int order) {
  if (order < 1) throw RuntimeError(Fault::InvalidPropertyValue);
  if (order % 2 == 1) return SearchOddSquare(order);
  return order % 4 == 2 ? BuildLuxSquare((order - 2) / 4) : BuildDoublyEvenSquare(order / 4);
}

void NormalSquare::Count(std::int32_t steps) {
  if (IterationCounter > std::numeric_limits<std::int32_t>::max() - steps) {
    throw RuntimeError(Fault::Overflow);
  }
  IterationCounter += steps;
  stage_.ShowCount(IterationCounter);
}

CellTable NormalSquare::SearchOddSquare(int order) {
  stage_.ShowCount("");
  IterationCounter = 0;
  const auto attempts = FindMagicStarts(order, MagicConstant(order));
  if (attempts.size() > kMaxAttempts) throw RuntimeError(Fault::SubscriptOutOfRange);
  Count(2 * order * order);

  const auto kept = static_cast<int>(attempts.size());
  std::int16_t pick = 0;
  for (int draw = 0; draw < kMaxPicks; ++draw) {
    stage_.Yield();
    random_.Reseed();
    pick = ToInt16(Int(kept * random_.Next() + 0.5));
    if (pick < 1) pick = 1;
    if (pick != LastPickOrTurns) break;
  }
  LastPickOrTurns = pick;

  const SteppingAttempt& attempt = attempts[static_cast<std::size_t>(pick - 1)];
  CellTable cells;
  FillByStepping(cells, order, attempt.StartRow, attempt.StartColumn, kSteppings[attempt.Pattern]);
  return cells;
}

CellTable NormalSquare::BuildLuxSquare(int k) {
  const int oddOrder = 2 * k + 1;
  const CellTable odd = SearchOddSquare(oddOrder);
  IterationCounter = 0;
  stage_.ShowCount("");
  CellTable cells;
  ForEachCell(oddOrder, [&](int i, int j) {
    double number = 4 * odd(i, j) - 3;
    for (const int place : LuxLetterAt(i - 1, j - 1, oddOrder).Places)
      cells(2 * i - 1 + place / 2, 2 * j - 1 + place % 2) = number++;
  });
  // One step for each L of the first k + 1 rows, each cell of the odd square and each block.
  Count((k + 1) * oddOrder + 2 * oddOrder * oddOrder);
  return cells;
}

CellTable NormalSquare::BuildDoublyEvenSquare(int m) {
  const int order = 4 * m;
  stage_.ShowCount("");
  // One step for each cell and each block.
  Count(order * order + m * m);
  LastPickOrTurns = static_cast<std::int16_t>(LastPickOrTurns >= 3 ? 0 : LastPickOrTurns + 1);
  TurningSquare square(order);
  ForEachCell(order, [&](int i, int j) {
    const int value = (i - 1) * order + j;
    square(i, j) = OnBlockDiagonal(i - 1, j - 1) ? order * order + 1 - value : value;
  });
  for (int turn = 0; turn < LastPickOrTurns; ++turn)
    square.RotateBoard90();
  return square.Settled();
}

}  // namespace numorra
