#pragma once

#include <array>

#include "app/board/board.h"
#include "words/say.h"

namespace numorra {

/// The eight symmetries of a square form a group: four turns (including none) and four mirrors. A
/// magic square stays magic under each. All work on the value block, rows and columns 1..order, and
/// leave the totals around it alone.
///
/// The rotations and the horizontal flip copy values unchanged. The other three mirrors round the
/// values of one half, including the mirror line, to 16-bit whole numbers (halves to even); the
/// values of the other half do not change. A value that does not fit throws Overflow, and the
/// exchanges made so far remain.
struct Symmetry {
  const char* Name;     ///< of the menu item
  const char* Caption;  ///< the item's text, a phrase
  void (*Turn)(CellTable& cells, int order);
};

/// (r, c) to (c, n + 1 - r): a clockwise quarter turn.
void RotateBoard90(CellTable& cells, int order);

/// (r, c) to (n + 1 - r, c): exchanges top and bottom rows.
void FlipBoardHorizontal(CellTable& cells, int order);

/// (r, c) to (r, n + 1 - c): exchanges left and right columns.
void FlipBoardVertical(CellTable& cells, int order);

/// (r, c) to (n + 1 - c, n + 1 - r): mirrored in the diagonal from top right to bottom left.
void FlipBoardDiagonal1(CellTable& cells, int order);

/// (r, c) to (c, r): mirrored in the diagonal from top left to bottom right, the transpose.
void FlipBoardDiagonal2(CellTable& cells, int order);

/// Two quarter turns, and three.
void RotateBoard180(CellTable& cells, int order);
void RotateBoard270(CellTable& cells, int order);

/// The seven symmetries that change a square, in menu order.
inline constexpr std::array kSymmetries = {
    Symmetry{"flipvx", Mark("Flip vertical"), FlipBoardVertical},
    Symmetry{"fliphx", Mark("Flip horizontal"), FlipBoardHorizontal},
    Symmetry{"flipd1x", Mark("Flip diagonal 1"), FlipBoardDiagonal1},
    Symmetry{"flipd2x", Mark("Flip diagonal 2"), FlipBoardDiagonal2},
    Symmetry{"rot90x", Mark("Rotate 90d"), RotateBoard90},
    Symmetry{"rot180x", Mark("Rotate 180d"), RotateBoard180},
    Symmetry{"rot270x", Mark("Rotate 270d"), RotateBoard270},
};

/// The symmetry as a command: reads the grid, turns it and shows it, and checks the totals again if
/// they had been checked before. Gaps, givens and notes move with their cells. If a value
/// overflows, the grid does not change.
void TurnBoard(Board& board, const Symmetry& symmetry);

}  // namespace numorra
