#pragma once

#include "app/board/random.h"
#include "transform/turning_square.h"

namespace numorra {

/// Squares with a chosen number at the top left.
///
/// A unit is a permutation matrix with one cell on each main diagonal: it adds 1 to every line.
/// A square of ones plus n x base - n units has the total n x base, and its corner is 1 plus the
/// number of units that pass through it. From order 4 on, there are units that do and units that do
/// not:
///
///     X . . .      . . X .
///     . . X .      . X . .
///     . . . X      . . . X
///     . X . .      X . . .
///
/// So every corner from 1 to n x base - n + 1 has a square; a larger one would leave less than 1
/// for the other cells of its row.

/// The largest possible corner.
inline int HighestCorner(int order, int base) {
  return order * base - order + 1;
}

/// Builds such a square of random units in `square`, of order 4 or more, so that
/// SpreadCornerDiagonals ends with the corner at (1, 1). `corner` is a whole number from 1 to
/// HighestCorner. No unit meets the other three corners, which stay 1: so every factor of that pass
/// is 0, and its quarter turns bring the corner to (1, 1).
void SeedCorner(TurningSquare& square, int base, int corner, Random& random);

}  // namespace numorra
