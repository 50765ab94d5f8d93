#include <string>
#include <utility>

#include "app/board/board.h"
#include "generate/construction.h"
#include "transform/turning_square.h"
#include "words/say.h"

/// The construction for orders n = 4m: the numbers in reading order, those on the two diagonals of
/// every 4 x 4 block counted from the other end: n x n + 1 minus the number; then quarter turns.
///
///      1  2  3  4        16  2  3 13
///      5  6  7  8         5 11 10  8
///      9 10 11 12   ->    9  7  6 12
///     13 14 15 16         4 14 15  1
namespace numorra {
namespace {

bool OnBlockDiagonal(int row, int column) {
  return row % 4 == column % 4 || (row + column) % 4 == 1;
}

/// The number of a cell before turning.
int NumberIn(int row, int column, int order) {
  const int value = (row - 1) * order + column;
  return OnBlockDiagonal(row, column) ? order * order + 1 - value : value;
}

CellTable SquareTurned(int order, int quarterTurns) {
  TurningSquare square(order);
  ForEachCell(order,
              [&](int row, int column) { square(row, column) = NumberIn(row, column, order); });
  for (int turn = 0; turn < quarterTurns; ++turn)
    square.RotateBoard90();
  return square.Settled();
}

CellTable BuildByDiagonals(int order, BuildChoices& choices) {
  choices.ResumeCount();
  // One step for each cell and each block.
  choices.Count(order * order + order * order / 16);
  return SquareTurned(order, choices.QuarterTurns());
}

/// Exchanges two opposite numbers on marked cells.
WalkStep ExchangeOf(int small, Place atSmall, int large, Place atLarge) {
  return {{{atSmall, std::to_string(large)}, {atLarge, std::to_string(small)}},
          {atSmall, atLarge},
          std::pair(atLarge, atSmall),
          Say("%1 and %2, opposite each other, change places", small, large),
          0};
}

/// Steps that each write a line of numbers in order, a step that marks the cells, then one exchange
/// per step.
std::vector<WalkStep> StepsOfDiagonals(const PlacedNumbers& square) {
  const int n = square.Order();
  int turns = 0;
  while (SquareOf(SquareTurned(n, turns), n) != square.Numbers()) {
    if (++turns == 4) return {};
  }
  // The place of a cell after the turns.
  const auto turned = [&](int row, int column) { return square.PlaceOf(NumberIn(row, column, n)); };
  // By the quarter turns.
  constexpr const char* kTakes[] = {Mark("row %1 takes %2 to %3, from the left"),
                                    Mark("column %1 takes %2 to %3, from the top down"),
                                    Mark("row %1 takes %2 to %3, from the right"),
                                    Mark("column %1 takes %2 to %3, from the bottom up")};
  std::vector<WalkStep> walk;
  std::vector<WalkStep> exchanges;
  std::vector<Place> marked;
  for (int row = 1; row <= n; ++row) {
    WalkStep line;
    for (int column = 1; column <= n; ++column) {
      const int number = (row - 1) * n + column;
      const Place here = turned(row, column);
      line.Written.emplace_back(here, std::to_string(number));
      line.Marked.push_back(here);
      if (!OnBlockDiagonal(row, column)) continue;
      marked.push_back(here);
      if (row > n / 2) continue;
      const Place there = turned(n + 1 - row, n + 1 - column);
      exchanges.push_back(ExchangeOf(number, here, n * n + 1 - number, there));
    }
    const Place first = line.Marked.front();
    line.Sentence =
        Say(kTakes[turns], turns % 2 == 0 ? first.Row : first.Column, (row - 1) * n + 1, row * n);
    walk.push_back(std::move(line));
  }
  walk.push_back(
      {{}, marked, {}, Say("the cells on the two diagonals of every 4 x 4 block are marked"), 0});
  walk.insert(walk.end(), exchanges.begin(), exchanges.end());
  return walk;
}

}  // namespace

const Construction kDiagonalConstruction = {
    "marks",
    "BuildMarksx",
    Mark("&Marks on Diagonals"),
    Mark("an old method"),
    [](int order) -> std::string {
      if (order > 0 && order % 4 == 0) return {};
      return Say("the method of marks on diagonals makes multiples of 4, not %1", order);
    },
    BuildByDiagonals,
    StepsOfDiagonals};

}  // namespace numorra
