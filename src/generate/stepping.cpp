#include "generate/stepping.h"

#include "app/board/board.h"

namespace numorra {
namespace {

int Wrap(int line, int order) {
  return line < 1 ? order : line > order ? 1 : line;
}

/// The totals of all lines of a fill, the broken diagonals among them.
struct LineTotals {
  bool RowsAndColumnsMagic = true;
  std::vector<double> Falling;  ///< by (column - row) mod order
  std::vector<double> Rising;   ///< by (column + row) mod order
};

LineTotals TotalsOf(CellTable& cells, int order, double target) {
  ComputeTotals(cells, order);
  const auto size = static_cast<std::size_t>(order);
  LineTotals totals{.Falling = std::vector<double>(size), .Rising = std::vector<double>(size)};
  for (int i = 1; i <= order; ++i) {
    if (cells(i, 0) != target || cells(0, i) != target) totals.RowsAndColumnsMagic = false;
  }
  ForEachCell(order, [&](int r, int c) {
    totals.Falling[static_cast<std::size_t>((c - r + order) % order)] += cells(r, c);
    totals.Rising[static_cast<std::size_t>((c + r) % order)] += cells(r, c);
  });
  return totals;
}

}  // namespace

void FillByStepping(CellTable& cells, int order, int startRow, int startColumn, Stepping step) {
  ForEachCell(order, [&](int r, int c) { cells(r, c) = 0; });
  int row = startRow;
  int column = startColumn;
  cells(row, column) = 1;
  for (int value = 2; value <= order * order; ++value) {
    const int nextRow = Wrap(row + step.Row, order);
    const int nextColumn = Wrap(column + step.Column, order);
    if (cells(nextRow, nextColumn) == 0) {
      row = nextRow;
      column = nextColumn;
    } else {
      row = Wrap(row + step.BreakRow, order);
    }
    cells(row, column) = value;
  }
}

std::vector<SteppingAttempt> FindMagicStarts(int order, double target) {
  std::vector<SteppingAttempt> kept;
  CellTable fill;
  for (std::int16_t pattern = 0; pattern < 2; ++pattern) {
    FillByStepping(fill, order, 1, 1, kSteppings[pattern]);
    const LineTotals totals = TotalsOf(fill, order, target);
    if (!totals.RowsAndColumnsMagic) continue;
    ForEachCell(order, [&](int startRow, int startColumn) {
      // The cell at (r, c) of this start is the fill's at (r - startRow + 1, c - startColumn + 1).
      const auto falling = static_cast<std::size_t>((startRow - startColumn + order) % order);
      const auto rising =
          static_cast<std::size_t>((3 * order + 3 - startRow - startColumn) % order);
      if (totals.Falling[falling] == target && totals.Rising[rising] == target) {
        kept.push_back(
            {static_cast<std::int16_t>(startRow), static_cast<std::int16_t>(startColumn), pattern});
      }
    });
  }
  return kept;
}

}  // namespace numorra
