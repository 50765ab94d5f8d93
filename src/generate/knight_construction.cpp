#include "generate/construction.h"
#include "generate/stepping_moves.h"
#include "words/say.h"

/// The knight's move, for odd orders n from 5: from number to number two up and one to the right,
/// with wrap-around; if that cell is taken, after each multiple of n, two to the right instead. The
/// middle number is in the middle cell.
///
///     20  8 21 14  2
///     11  4 17 10 23       In the row i and the column j, counted from the middle, the number
///      7 25 13  1 19       n q + r + 1 has i = 2 (q - r) and j = q + r, where q and r are counted
///      3 16  9 22 15       from their middle values, all modulo n.
///     24 12  5 18  6
///
/// Each row and column has all q and all r. If 3 does not divide n, so does each diagonal, with
/// wrap-around, and the square is pandiagonal. If it does, each diagonal has all values of one
/// digit and every third one of the other. Through the middle cell, these have the middle value as
/// their mean, so the square is magic. Opposite numbers add up to n x n + 1 in any case.
namespace numorra {
namespace {

CellTable BuildByKnight(int order, BuildChoices& /*choices*/) {
  const int middle = order / 2;
  const auto wrapped = [order](int line) { return ((line % order) + order) % order + 1; };
  CellTable cells;
  for (int number = 0; number < order * order; ++number) {
    const int q = number / order - middle;
    const int r = number % order - middle;
    cells(wrapped(middle + 2 * (q - r)), wrapped(middle + q + r)) = number + 1;
  }
  return cells;
}

/// One number per step. Recognises any knight's move and a break along a line, and so turned and
/// mirrored squares, too.
std::vector<WalkStep> StepsOfKnight(const PlacedNumbers& square) {
  const auto moves = MovesOf(square);
  return moves && !IsDiagonal(*moves) ? StepsByMoves(square, *moves) : std::vector<WalkStep>();
}

}  // namespace

const Construction kKnightConstruction = {
    "knight",
    "BuildKnightx",
    Mark("&Knight's Move"),
    Mark("an old method"),
    [](int order) -> std::string {
      if (order >= 5 && order % 2 == 1) return {};
      return Say("the knight's move makes odd orders from 5, not %1", order);
    },
    BuildByKnight,
    StepsOfKnight};

}  // namespace numorra
