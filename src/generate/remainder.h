#pragma once

#include "app/board/random.h"
#include "transform/turning_square.h"

namespace numorra {

/// The last step towards a total that is not a multiple of the order: raises every line by the
/// remainder.

/// Adds a fixed unit pattern, in which every line has one more adding cell than subtracting ones,
/// `remainder` times to a square of even order from 4 (a negative remainder subtracts). If a cell
/// would fall below 1, the previous square is given a quarter turn and tried again, in at most four
/// attempts. False if none succeeds; the square is then the previous one after three quarter turns.
bool SpreadRemainderEven(TurningSquare& square, int remainder);

/// Adds 1 along `remainder` random transversals that meet each diagonal exactly once, to a square
/// of odd order from 5. Only raises cells. False if the random source is so poor that no
/// transversal is found.
bool SpreadRemainderOdd(TurningSquare& square, int remainder, Random& random);

}  // namespace numorra
