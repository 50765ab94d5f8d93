#pragma once

#include "app/board/board.h"

namespace numorra {

/// A line through the current cell that can be adjusted to the target total.
enum class AdjustLine { Row, Column, Diagonal };

enum class AdjustOutcome { Possible, BelowZero, TooManyDigits, NotOnDiagonal };

struct Adjustment {
  AdjustOutcome Outcome = AdjustOutcome::Possible;
  double Value = 0;  ///< the number that the current cell needs
};

/// The value with which the current cell makes the line right: the target minus the other cells, as
/// the grid shows them. The centre of an odd order lies on both diagonals and is adjusted for the
/// one from top right to bottom left. Values below 0, or with more digits than a cell takes, are
/// impossible.
Adjustment AdjustToTotal(const Board& board, AdjustLine line);

}  // namespace numorra
