#include "transform/adjust.h"

#include "app/board/decimal_sum.h"
#include "app/board/numbers.h"

namespace numorra {

Adjustment AdjustToTotal(const Board& board, AdjustLine line) {
  const Grid& grid = board.grid;
  const int n = board.GridSize;
  const int row = grid.CurrentRow();
  const int column = grid.CurrentColumn();
  const bool onMain = row == column;
  const bool onOther = row + column == n + 1;
  if (line == AdjustLine::Diagonal && !onMain && !onOther) return {AdjustOutcome::NotOnDiagonal};

  DecimalSum missing;
  missing.Add(board.TargetTotal);
  missing.Add(Val(grid.Text(row, column)));
  for (int i = 1; i <= n; ++i) {
    switch (line) {
      case AdjustLine::Row:
        missing.Subtract(Val(grid.Text(row, i)));
        break;
      case AdjustLine::Column:
        missing.Subtract(Val(grid.Text(i, column)));
        break;
      case AdjustLine::Diagonal:
        missing.Subtract(Val(grid.Text(i, onOther ? n + 1 - i : i)));
        break;
    }
  }
  const double value = missing.Total();
  if (value < 0) return {AdjustOutcome::BelowZero};
  if (DigitsOf(Decimal(value)) > kMostCellDigits) return {AdjustOutcome::TooManyDigits};
  return {AdjustOutcome::Possible, value};
}

}  // namespace numorra
