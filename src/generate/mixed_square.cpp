#include "generate/mixed_square.h"

#include "app/board/board.h"
#include "generate/exchange.h"

namespace numorra {
namespace {

/// Order 3 has only two patterns, this one and its mirror image, and no rectangular exchanges.
Pattern PatternOfOrder3(bool mirrored) {
  constexpr int kWeights[3][3] = {{1, -1, 0}, {-1, 0, 1}, {0, 1, -1}};
  Pattern pattern;
  for (int row = 1; row <= 3; ++row) {
    for (int column = 1; column <= 3; ++column) {
      const int weight = kWeights[row - 1][mirrored ? 3 - column : column - 1];
      if (weight != 0) pattern.Add(row, column, weight);
    }
  }
  return pattern;
}

/// Applies a random pattern that changes the cell, with a factor that `choose` takes from the range
/// that the cells allow.
template <class Choose>
void MoveCell(PatternedSquare& square, int row, int column, Choose choose) {
  const Pattern pattern = square.Order() == 3
                              ? PatternOfOrder3(square.TheRandom().Between(0, 1) == 1)
                              : ExchangeAt(square, row, column);
  square.Apply(pattern, choose(ExchangeRange(square, pattern)));
}

bool IsFlat(const TurningSquare& square) {
  bool flat = true;
  ForEachCell(square.Order(), [&](int r, int c) { flat = flat && square(r, c) == square(1, 1); });
  return flat;
}

}  // namespace

CellTable MixedSquare(const CellTable& square, int order, bool limitToNine, Random& random,
                      Yielding& yielding) {
  SilentStage stage(&yielding);
  constexpr int kMoves = 10;
  constexpr int kMostRounds = 100;  // a flat square is magic, but dull
  PatternedSquare mixed(TurningSquare(square, order), limitToNine, 0, random, stage);
  const auto any = [&](FactorRange range) { return random.Between(range.Low, range.High); };
  for (int round = 0; round == 0 || (round < kMostRounds && IsFlat(mixed.Square())); ++round) {
    for (int move = 0; move < kMoves; ++move)
      ForEachCell(order, [&](int r, int c) { MoveCell(mixed, r, c, any); });
  }
  return mixed.Square().Settled();
}

CellTable WithSmallNumbers(const CellTable& square, int order, bool limitToNine, Random& random,
                           Yielding& yielding) {
  constexpr double kShare = 0.2;
  SilentStage stage(&yielding);
  PatternedSquare lowered(TurningSquare(square, order), limitToNine, 0, random, stage);
  ForEachCell(order, [&](int r, int c) {
    if (random.Next() >= kShare) return;
    MoveCell(lowered, r, c, [](FactorRange range) { return range.Low; });
  });
  return lowered.Square().Settled();
}

}  // namespace numorra
