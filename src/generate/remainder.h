#pragma once

#include "app/board/random.h"
#include "transform/turning_square.h"

namespace numorra {

/// The last step towards a total that is not a multiple of the order: raise every line by what is
/// left.

/// Adds a fixed unit pattern, in which every line has one more adding cell than subtracting ones,
/// `remainder` times to a square of even order from 4 (a negative remainder subtracts). When a cell
/// would fall below 1 the square before the step is given a quarter turn and tried again, in four
/// attempts at most. False when none succeeds; the square is then that from before the step after
/// three quarter turns.
bool SpreadRemainderEven(TurningSquare& square, int remainder);

/// Adds 1 along `remainder` random transversals that meet each diagonal exactly once, to a square
/// of odd order from 5. Only raises cells. False when the random source is so poor that no
/// transversal turns up.
bool SpreadRemainderOdd(TurningSquare& square, int remainder, Random& random);

}  // namespace numorra
