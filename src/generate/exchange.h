#pragma once

#include "generate/patterned_square.h"

namespace numorra {

/// Exchanges: zero-sum patterns that can change any single cell of a square.
///
/// The basic exchange is a rectangle, +w at (r, c) and (y, x), -w at (r, x) and (y, c): rows and
/// columns keep their totals. If its other three corners are off both diagonals, it changes a
/// diagonal only if (r, c) is on one; then a second rectangle with the other sign, at another cell
/// of that diagonal, corrects it.
///
/// A square of order 4 is too small for this on its diagonals. Its exchanges come from the list of
/// all zero-sum patterns of -1, 0 and 1, found once by trying them.

/// A random pattern that adds 1 to the cell (row, column). It changes (1, 1) only if that is the
/// cell. Empty if no such pattern exists, as below order 4.
Pattern ExchangeAt(PatternedSquare& square, int row, int column);

/// A range of whole numbers, Low <= 0 <= High.
struct FactorRange {
  int Low;
  int High;
};

/// The factors that keep every cell of the pattern at 1 or more and, under the limit, at 9 or less,
/// as the cells are before.
FactorRange ExchangeRange(const PatternedSquare& square, const Pattern& pattern);

/// Changes the cell by an exchange with a random factor from the middle three quarters of its
/// range: the full range would push cells to 1 and leave later passes no room; the middle half
/// leaves a quarter of the boards with half of their values repeated. If the range is so small that
/// nothing would remain, any factor but 0 is taken.
void VaryCell(PatternedSquare& square, int row, int column);

/// Varies the middle row and the middle column of an odd order, line by line in random order; the
/// spreading passes never change the centre.
void OddSizePass(PatternedSquare& square);

/// Varies every cell, row by row in random order; every cell but (1, 1) if the corner is kept.
void ThirdCornerPass(PatternedSquare& square, bool keepCorner);

}  // namespace numorra
