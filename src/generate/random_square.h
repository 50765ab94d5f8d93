#pragma once

#include "app/board/random.h"
#include "app/board/square.h"
#include "app/ports/yielding.h"

namespace numorra {

/// A random normal magic square of order 5 to 50. All squares are about equally likely, so most are
/// of no special kind.
///
/// A Metropolis walk (Metropolis and others 1953) over all numberings of the cells, from a random
/// one. The cost of a numbering is the sum of the absolute errors of its rows, columns and main
/// diagonals. A step proposes to exchange two neighbouring numbers, v and v + 1, or, one time in
/// twenty, any two; an exchange that raises the cost by d is made with probability exp(-d / T). In
/// the long run all numberings of one cost are equally likely, so all magic squares are.
///
/// The first magic square that such a walk meets is not a fair choice: it favours squares that are
/// easy to reach. So the walk continues, and each step at a magic square ends it there with a small
/// probability. This chooses squares by the time that the walk spends at them, which is the same
/// for all. The walk meets about ten magic squares in orders 5 to 10, a few in larger ones.
///
/// Takes about 3 ms at order 5, 7 ms at order 10, 0.15 s at order 50. It yields throughout; an
/// exception thrown by a yield ends the walk.
Square<int> RandomNormalSquare(int order, Random& random, Yielding& yielding);

}  // namespace numorra
