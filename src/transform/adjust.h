#pragma once

#include "app/board/board.h"

namespace numorra {

/// A line through the current cell that is to reach the target total.
enum class AdjustLine { Row, Column, Diagonal };

enum class AdjustOutcome { Possible, BelowZero, TooManyDigits, NotOnDiagonal };

struct Adjustment {
  AdjustOutcome Outcome = AdjustOutcome::Possible;
  double Value = 0;  ///< what the current cell has to hold
};

/// The value with which the current cell makes the line right: the target less the other cells,
/// read as they stand in the grid. The centre of an odd order lies on both diagonals and is
/// adjusted for the one from top right to bottom left. Impossible are values below 0 and those of
/// more digits than a cell takes.
Adjustment AdjustToTotal(const Board& board, AdjustLine line);

}  // namespace numorra
