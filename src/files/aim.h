#pragma once

#include <optional>

#include "files/stored_square.h"

namespace numorra {

/// The total that every line of a square should have, and the rules for its gaps.
struct Aim {
  double Target;
  Rules Asked;
};

/// The aim of a stored square. The target is its stored total, rounded as totals are. Otherwise:
/// - the sum of the first row if there are no gaps;
/// - the normal total and rules if its numbers are different, whole and within 1 to n x n;
/// - the sum of the first line without a gap: rows, then columns, then diagonals.
/// Nothing if none of these applies.
std::optional<Aim> AimOf(const StoredSquare& square);

}  // namespace numorra
