#pragma once

#include <cstdint>
#include <optional>

#include "app/board/random.h"
#include "app/ports/yielding.h"
#include "puzzle/puzzle.h"

namespace numorra {

/// Which full square a puzzle is to be made from.
struct SquareWish {
  int Order = 4;
  std::optional<std::int64_t> Total = {};  ///< any other than the normal one, 1 or more
  bool LimitToNine = false;  ///< of the square's numbers; a puzzle's gaps know no such limit
};

/// A full square at random. A normal one, each as likely as the others: exactly so up to order 4,
/// about so above (generate/random_square.h). One of any total (generate/mixed_square.h) where a
/// total or the limit is wished for. Nothing where there is none, or none was found in ten tries.
/// The total is that of the square that was built: a limit or a small total may have corrected it.
std::optional<Puzzle> FreshSquare(const SquareWish& wish, Random& random, Yielding& yielding);

}  // namespace numorra
