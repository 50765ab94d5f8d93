#pragma once

#include <cstdint>
#include <vector>

#include "app/board/cell_table.h"

namespace numorra {

/// The stepping construction of odd magic squares (de la Loubère 1691): put 1 somewhere, continue
/// by a fixed step with wrap-around, and if the cell is taken, make the break step from the last
/// cell instead.
///
///     . 1 .        8 1 .        8 1 6
///     3 . .   ->   3 5 .   ->   3 5 7      up and right; down when taken
///     . . 2        4 . 2        4 9 2
struct Stepping {
  int Row;
  int Column;
  int BreakRow;
};

/// Each pattern is one diagonal step. A diagonal is back at its start after n numbers, and only
/// then is a cell taken. Pattern 0 goes up and right and breaks down; pattern 1 goes down and left
/// and breaks up.
inline constexpr Stepping kSteppings[] = {{-1, 1, 1}, {1, -1, -1}};

/// Fills the block with 1..order x order from (startRow, startColumn), each 1..order.
void FillByStepping(CellTable& cells, int order, int startRow, int startColumn, Stepping step);

/// A start that gives a magic square.
struct SteppingAttempt {
  std::int16_t StartRow;
  std::int16_t StartColumn;
  std::int16_t Pattern;

  bool operator==(const SteppingAttempt&) const = default;
};

/// The attempts with all totals equal to `target`, ordered by pattern, start row, start column.
///
/// Not all 2n^2 squares need to be filled. Another start shifts the whole fill cyclically, so rows
/// and columns keep their totals, and the two main diagonals are broken diagonals of the fill from
/// (1, 1). The second pattern's fill from there is the first one's, turned by half a turn about (1,
/// 1) with wrap-around. So one fill and its 2n broken diagonals decide about every start. 2n
/// attempts remain, or 2n/3 if 3 divides n.
std::vector<SteppingAttempt> FindMagicStarts(int order, double target);

}  // namespace numorra
