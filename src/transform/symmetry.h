#pragma once

#include "app/board/board.h"

namespace numorra {

/// The eight symmetries of a square form a group: four turns (none among them) and four mirrors. A
/// magic square stays magic under each. All work on the value block, rows and columns 1..order, and
/// leave the totals around it alone.
///
/// The rotations and the horizontal flip copy values as they are. The other three mirrors pass the
/// values of the half they walk over, those on the mirror line too, through a 16-bit whole number
/// (halves to even); the values that come the other way arrive as they were. A value that does not
/// fit throws Overflow, with the exchanges made so far kept.
enum class Symmetry {
  FlipVertical,
  FlipHorizontal,
  FlipDiagonal1,
  FlipDiagonal2,
  Rotate90,
  Rotate180,
  Rotate270,
};

/// (r, c) to (c, n + 1 - r): a clockwise quarter turn.
void RotateBoard90(CellTable& cells, int order);

/// (r, c) to (n + 1 - r, c): top and bottom rows change places.
void FlipBoardHorizontal(CellTable& cells, int order);

/// (r, c) to (r, n + 1 - c): left and right columns change places.
void FlipBoardVertical(CellTable& cells, int order);

/// (r, c) to (n + 1 - c, n + 1 - r): mirrored in the diagonal from top right to bottom left.
void FlipBoardDiagonal1(CellTable& cells, int order);

/// (r, c) to (c, r): mirrored in the diagonal from top left to bottom right, the transpose.
void FlipBoardDiagonal2(CellTable& cells, int order);

/// The symmetry as a command: changes BoardValues, shows them, and judges the totals again where a
/// check had judged them before.
void TurnBoard(Board& board, Symmetry symmetry);

}  // namespace numorra
