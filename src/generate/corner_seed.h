#pragma once

#include "app/board/random.h"
#include "transform/turning_square.h"

namespace numorra {

/// Squares with a chosen number at the top left.
///
/// A unit is a permutation matrix with one cell on each main diagonal: it adds 1 to every line.
/// A square of ones and n x base - n units has the total n x base, and its corner is 1 and the
/// number of units that pass through it. From order 4 on there are units that do and units that do
/// not:
///
///     X . . .      . . X .
///     . . X .      . X . .
///     . . . X      . . . X
///     . X . .      X . . .
///
/// So every corner from 1 to n x base - n + 1 has a square; a larger one would leave less than 1
/// for the others of its row.

/// The largest of these corners.
inline int HighestCorner(int order, int base) {
  return order * base - order + 1;
}

/// Makes of `square`, of order 4 or more, one of these of many random units, so that
/// SpreadCornerDiagonals ends with the corner at (1, 1). `corner`: a whole number from 1 to
/// HighestCorner. No unit meets the corners beside and opposite, which stay 1: every factor of that
/// pass is then 0, and its quarter turns bring the corner home.
void SeedCorner(TurningSquare& square, int base, int corner, Random& random);

}  // namespace numorra
