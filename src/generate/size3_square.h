#pragma once

#include <optional>

#include "app/board/random.h"
#include "transform/turning_square.h"

namespace numorra {

/// Every 3 x 3 magic square with total 3b is b plus this zero-sum pattern, for some p, r and
/// q = -(p + r):
///
///       p     q     r
///     r - p   0   p - r
///      -r    -q    -p
struct Size3Offsets {
  int P;
  int Q;
  int R;
};

/// Random p, r >= 1 with p + r < base, so that no cell falls below 1. Nothing if a hundred draws do
/// not satisfy that; with base 2 none can. Reseeds the random numbers before every draw.
std::optional<Size3Offsets> PickSize3Offsets(int base, Random& random);

/// Adds such a pattern to a 3 x 3 square of `base`; false, with the square unchanged, if there is
/// none.
bool BuildSize3Square(TurningSquare& square, int base, Random& random);

}  // namespace numorra
