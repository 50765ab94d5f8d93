#pragma once

#include <array>

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
struct Symmetry {
  const char* Name;     ///< of its menu item
  const char* Caption;  ///< what the item says
  void (*Turn)(CellTable& cells, int order);
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

/// Two quarter turns, and three.
void RotateBoard180(CellTable& cells, int order);
void RotateBoard270(CellTable& cells, int order);

/// The seven that change a square, in the order of the menu.
inline constexpr std::array kSymmetries = {
    Symmetry{"flipvx", "Flip vertical", FlipBoardVertical},
    Symmetry{"fliphx", "Flip horizontal", FlipBoardHorizontal},
    Symmetry{"flipd1x", "Flip diagonal 1", FlipBoardDiagonal1},
    Symmetry{"flipd2x", "Flip diagonal 2", FlipBoardDiagonal2},
    Symmetry{"rot90x", "Rotate 90d", RotateBoard90},
    Symmetry{"rot180x", "Rotate 180d", RotateBoard180},
    Symmetry{"rot270x", "Rotate 270d", RotateBoard270},
};

/// The symmetry as a command: reads the grid, turns what it holds and shows it, and judges the
/// totals again where a check had judged them before. Gaps stay gaps, and givens go with their
/// numbers. When a value overflows, the grid is as it was.
void TurnBoard(Board& board, const Symmetry& symmetry);

}  // namespace numorra
