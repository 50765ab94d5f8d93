#include "transform/adjust.h"

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

  double sum = 0;
  for (int i = 1; i <= n; ++i) {
    switch (line) {
      case AdjustLine::Row:
        sum += Val(grid.Text(row, i));
        break;
      case AdjustLine::Column:
        sum += Val(grid.Text(i, column));
        break;
      case AdjustLine::Diagonal:
        sum += Val(grid.Text(i, onOther ? n + 1 - i : i));
        break;
    }
  }
  const double value = board.TargetTotal + Val(grid.Text(row, column)) - sum;
  if (value < 0) return {AdjustOutcome::BelowZero};
  return {AdjustOutcome::Possible, value};
}

}  // namespace numorra
