#include "transform/symmetry.h"

#include <utility>

#include "app/board/numbers.h"
#include "app/board/totals_check.h"

namespace numorra {
namespace {

/// Exchanges two cells; what leaves the first does so as a 16-bit whole number.
void ExchangeRounding(double& visited, double& mirror) {
  const double rounded = ToInt16(visited);
  visited = mirror;
  mirror = rounded;
}

}  // namespace

void RotateBoard90(CellTable& cells, int order) {
  const CellTable before = cells;
  ForEachCell(order, [&](int r, int c) { cells(c, order + 1 - r) = before(r, c); });
}

void FlipBoardHorizontal(CellTable& cells, int order) {
  for (int i = 1, k = order; i < k; ++i, --k) {
    for (int c = 1; c <= order; ++c)
      std::swap(cells(i, c), cells(k, c));
  }
}

void FlipBoardVertical(CellTable& cells, int order) {
  for (int i = 1, k = order; i < k; ++i, --k) {
    for (int r = 1; r <= order; ++r)
      ExchangeRounding(cells(r, i), cells(r, k));
  }
}

void FlipBoardDiagonal1(CellTable& cells, int order) {
  const int last = order + 1;
  for (int r = 1; r <= order; ++r) {
    for (int c = 1; c <= last - r; ++c)
      ExchangeRounding(cells(r, c), cells(last - c, last - r));
  }
}

void FlipBoardDiagonal2(CellTable& cells, int order) {
  for (int r = 1; r <= order; ++r) {
    for (int c = r; c <= order; ++c)
      ExchangeRounding(cells(r, c), cells(c, r));
  }
}

void TurnBoard(Board& board, Symmetry symmetry) {
  const int order = board.GridSize;
  board.TakeTypedCell();
  const auto quarterTurns = [&](int count) {
    for (int turn = 0; turn < count; ++turn)
      RotateBoard90(board.BoardValues, order);
  };
  switch (symmetry) {
    case Symmetry::FlipVertical:
      FlipBoardVertical(board.BoardValues, order);
      break;
    case Symmetry::FlipHorizontal:
      FlipBoardHorizontal(board.BoardValues, order);
      break;
    case Symmetry::FlipDiagonal1:
      FlipBoardDiagonal1(board.BoardValues, order);
      break;
    case Symmetry::FlipDiagonal2:
      FlipBoardDiagonal2(board.BoardValues, order);
      break;
    case Symmetry::Rotate90:
      quarterTurns(1);
      break;
    case Symmetry::Rotate180:
      quarterTurns(2);
      break;
    case Symmetry::Rotate270:
      quarterTurns(3);
      break;
  }
  board.ShowBoard();
  RefreshTotals(board);
}

}  // namespace numorra
