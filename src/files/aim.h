#pragma once

#include <optional>

#include "files/stored_square.h"

namespace numorra {

/// What every line of a square is to add up to, and by which rules its gaps are to be filled.
struct Aim {
  double Target;
  Rules Asked;
};

/// That of a stored square: its total, rounded as totals are. Without one:
/// - the sum of the first row when there are no gaps;
/// - the normal total and rules when its numbers are different, whole and within 1 to n x n;
/// - the sum of the first line without a gap: rows, then columns, then diagonals.
/// Nothing where none of these tells.
std::optional<Aim> AimOf(const StoredSquare& square);

}  // namespace numorra
