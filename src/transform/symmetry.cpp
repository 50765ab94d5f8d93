#include "transform/symmetry.h"

#include <utility>

#include "app/board/numbers.h"
#include "app/board/totals_check.h"

namespace numorra {
namespace {

/// Exchanges two cells; the value of the first is rounded to a 16-bit whole number.
void ExchangeRounding(double& visited, double& mirror) {
  const double rounded = ToInt16(visited);
  visited = mirror;
  mirror = rounded;
}

void TurnNotes(Board& board, const Symmetry& symmetry) {
  const int order = board.GridSize;
  CellTable from;
  ForEachCell(order, [&](int r, int c) {
    from(r, c) = static_cast<double>(IndexOf({r, c}, order));
  });
  symmetry.Turn(from, order);
  const Notes& notes = board.grid.AllNotes();
  board.grid.SetNotes(NotesOf(order, [&](int cell) {
    const auto [row, column] = PlaceAt(cell, order);
    return notes[static_cast<int>(from(row, column))];
  }));
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

void RotateBoard180(CellTable& cells, int order) {
  RotateBoard90(cells, order);
  RotateBoard90(cells, order);
}

void RotateBoard270(CellTable& cells, int order) {
  RotateBoard180(cells, order);
  RotateBoard90(cells, order);
}

void TurnBoard(Board& board, const Symmetry& symmetry) {
  board.ReadGrid();
  CellTable gaps, givens;
  ForEachCell(board.GridSize, [&](int r, int c) {
    gaps(r, c) = board.grid.At(r, c).IsGap() ? 1 : 0;
    givens(r, c) = board.grid.Given(r, c) ? 1 : 0;
  });
  for (CellTable* cells : {&board.BoardValues, &gaps, &givens})
    symmetry.Turn(*cells, board.GridSize);
  const bool told = board.WinTold;
  board.ShowBoard();
  board.WinTold = told;
  ForEachCell(board.GridSize, [&](int r, int c) {
    if (gaps(r, c) != 0) board.grid.SetText(r, c, "");
    board.grid.SetGiven(r, c, givens(r, c) != 0);
  });
  if (!board.grid.AllNotes().IsEmpty()) TurnNotes(board, symmetry);
  RefreshTotals(board);
}

}  // namespace numorra
