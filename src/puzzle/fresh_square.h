#pragma once

#include <cstdint>
#include <optional>

#include "app/board/random.h"
#include "app/ports/yielding.h"
#include "puzzle/puzzle.h"

namespace numorra {

/// The full square that a puzzle is made from.
struct SquareWish {
  int Order = 4;
  std::optional<std::int64_t> Total = {};  ///< 1 or more; without it, the normal total
  bool LimitToNine = false;  ///< for the square's numbers only, not for answers to the puzzle

  /// Squares of any total: lower some cells to 1 where that is possible. Under the positive rules
  /// only small numbers give more than the easiest rules something to say.
  bool ManySmallNumbers = false;
};

/// A full square at random. Without a total or limit, a normal one, uniform up to order 4 and
/// nearly so above (generate/random_square.h); otherwise one with the total
/// (generate/mixed_square.h). Nothing if there is none, or ten tries found none. The result has the
/// total that was built: a limit or a small total may have changed the wish.
std::optional<Puzzle> FreshSquare(const SquareWish& wish, Random& random, Yielding& yielding);

}  // namespace numorra
