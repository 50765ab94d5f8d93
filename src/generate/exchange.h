#pragma once

#include "generate/patterned_square.h"

namespace numorra {

/// Exchanges: zero-sum patterns that reach any one cell of a square.
///
/// The primitive is a rectangle, +w at (r, c) and (y, x), -w at (r, x) and (y, c): rows and columns
/// keep their totals. With its other three corners off both diagonals it changes a diagonal only
/// when (r, c) lies on one; then a second rectangle with the other sign, at another cell of that
/// diagonal, puts it right.
///
/// A square of order 4 is too small for that on its diagonals. Its exchanges are taken from the
/// list of all zero-sum patterns of -1, 0 and 1, found once by trying them.

/// A random pattern that adds 1 to the cell (row, column). Never touches (1, 1) but when asked for
/// it, at order 4 where that can be. Empty where no such pattern exists: below order 4.
Pattern ExchangeAt(PatternedSquare& square, int row, int column);

/// A range of whole numbers, Low <= 0 <= High.
struct FactorRange {
  int Low;
  int High;
};

/// The factors that leave every cell of the pattern at 1 or more, and at 9 or less under the limit;
/// the cells are such before.
FactorRange ExchangeRange(const PatternedSquare& square, const Pattern& pattern);

/// Changes the cell by an exchange with a random factor from the middle three quarters of its
/// range: the full range would drive cells to 1 and starve later passes, the middle half leaves a
/// quarter of the boards with half of their values repeated. Of a range so small that nothing would
/// be left of it, any factor but 0 is taken.
void VaryCell(PatternedSquare& square, int row, int column);

/// Varies the middle row and the middle column of an odd order, line by line in random order; the
/// spreading passes alone never change the centre.
void OddSizePass(PatternedSquare& square);

/// Varies every cell, row by row in random order; with a corner to keep, every cell but (1, 1).
void ThirdCornerPass(PatternedSquare& square, bool keepCorner);

}  // namespace numorra
