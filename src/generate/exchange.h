#pragma once

#include "generate/spreading.h"
#include "listbox/list_boy.h"

namespace numorra {

/// Exchanges: zero-sum patterns that reach any one cell of a square.
///
/// The primitive is a rectangle, +w at (r, c) and (y, x), -w at (r, x) and (y, c): rows and columns
/// keep their totals. With its other three corners off both diagonals it changes a diagonal only
/// when (r, c) lies on one; then a second rectangle with the other sign, at another cell of that
/// diagonal, puts it right.

/// A range of whole numbers, Low <= 0 <= High.
struct FactorRange {
  int Low;
  int High;
};

/// Writes into CellFlags a pattern that adds 1 to the cell (row, column). Never touches (1, 1) but
/// when asked for it. False, with CellFlags cleared, where no such pattern exists: on the diagonals
/// of orders below 5.
bool BuildExchange(Spreading& spreading, int row, int column);

/// The multipliers that leave every flagged cell at 1 or more, and at 9 or less under the limit;
/// the cells are such before.
FactorRange ExchangeRange(const Spreading& spreading);

/// Changes the cell by an exchange with a random multiplier from the middle three quarters of its
/// range. The full range would drive cells to 1 and starve later passes; the middle half leaves a
/// quarter of the boards with half of their values repeated, three quarters one in two hundred.
void VaryCell(Spreading& spreading, int row, int column);

/// Varies the middle row and the middle column of an odd order, line by line in random order; the
/// passes of Spreading alone never change the centre. `order` is the work list for the order.
void OddSizePass(Spreading& spreading, ListBoy& order);

/// Varies every cell but (1, 1), row by row in random order.
void ThirdCornerPass(Spreading& spreading, ListBoy& order);

/// Prepares a flat square of `base` so that SpreadCornerDiagonals ends with `corner` at (1, 1):
/// moves the corner there by exchanges, lowers the corners beside and opposite to 3 or less, so
/// that every multiplier of that pass is 0, and turns the square so that the pass's quarter turns
/// bring the corner home. A corner out of reach is approached as far as the other cells allow.
void SeedCorner(Spreading& spreading, double base, double corner);

}  // namespace numorra
