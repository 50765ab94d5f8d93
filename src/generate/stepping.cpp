#include "generate/stepping.h"

#include <algorithm>

namespace numorra {
namespace {

int Wrap(int line, int order) {
  return line < 1 ? order : line > order ? 1 : line;
}

/// The totals of all lines of a fill from (1, 1), including broken diagonals, by the distance of
/// their first-row cell from column 1, with wrap-around.
struct LineTotals {
  bool RowsAndColumnsMagic = true;
  std::vector<double> Falling;
  std::vector<double> Rising;
};

/// Marks the totals that equal the target, twice over, so that an index may run past the end.
std::vector<char> MagicOnes(const std::vector<double>& totals, double target) {
  std::vector<char> magic(2 * totals.size());
  for (std::size_t i = 0; i < magic.size(); ++i)
    magic[i] = totals[i % totals.size()] == target ? 1 : 0;
  return magic;
}

LineTotals TotalsOf(const CellTable& cells, int order, double target) {
  const auto n = static_cast<std::size_t>(order);
  LineTotals totals{.Falling = std::vector<double>(n), .Rising = std::vector<double>(n)};
  std::vector<double> columns(n);
  for (std::size_t row = 0; row < n; ++row) {
    const double* values = cells.Row(static_cast<int>(row) + 1) + 1;
    double sum = 0;
    // The diagonals through the row's first cell fall from, or rise to, these columns of row 1.
    std::size_t fall = row == 0 ? 0 : n - row;
    std::size_t rise = row;
    for (std::size_t column = 0; column < n; ++column) {
      sum += values[column];
      columns[column] += values[column];
      totals.Falling[fall] += values[column];
      totals.Rising[rise] += values[column];
      if (++fall == n) fall = 0;
      if (++rise == n) rise = 0;
    }
    if (sum != target) totals.RowsAndColumnsMagic = false;
  }
  for (const double column : columns) {
    if (column != target) totals.RowsAndColumnsMagic = false;
  }
  return totals;
}

}  // namespace

void FillByStepping(CellTable& cells, int order, int startRow, int startColumn, Stepping step) {
  // The number of steps until a line leaves the block.
  const auto room = [order](int line, int by) { return by > 0 ? order + 1 - line : line; };
  const int stride = step.Row * CellTable::kSide + step.Column;
  int row = startRow;
  int column = startColumn;
  for (int value = 1; value <= order * order;) {
    // One diagonal, in the straight runs between the edges.
    for (int left = order; left > 0;) {
      const int run = std::min({left, room(row, step.Row), room(column, step.Column)});
      double* cell = cells.Row(row) + column;
      for (int i = 0; i < run; ++i, cell += stride)
        *cell = value++;
      left -= run;
      row = Wrap(row + run * step.Row, order);
      column = Wrap(column + run * step.Column, order);
    }
    // The diagonal is back at its start: break from its last cell.
    row = Wrap(Wrap(row - step.Row, order) + step.BreakRow, order);
    column = Wrap(column - step.Column, order);
  }
}

std::vector<SteppingAttempt> FindMagicStarts(int order, double target) {
  CellTable fill;
  FillByStepping(fill, order, 1, 1, kSteppings[0]);
  const LineTotals totals = TotalsOf(fill, order, target);
  std::vector<SteppingAttempt> kept;
  if (!totals.RowsAndColumnsMagic) return kept;
  kept.reserve(2 * static_cast<std::size_t>(order));
  const auto falling = MagicOnes(totals.Falling, target);
  const auto rising = MagicOnes(totals.Rising, target);
  for (std::int16_t pattern = 0; pattern < 2; ++pattern) {
    // The positions of a start's main diagonals in the fill from (1, 1): one further for each
    // column, backwards for the first pattern and forwards for the second, which is turned.
    const int step = pattern == 0 ? -1 : 1;
    for (int row = 0; row < order; ++row) {
      const char* fall = &falling[static_cast<std::size_t>(order - step * row)];
      const char* rise = rising.data() + (pattern == 0 ? 2 * order - 1 - row : row + 1);
      for (int column = 0; column < order; ++column, fall += step, rise += step) {
        if ((*fall & *rise) == 0) continue;
        kept.push_back(
            {static_cast<std::int16_t>(row + 1), static_cast<std::int16_t>(column + 1), pattern});
      }
    }
  }
  return kept;
}

}  // namespace numorra
