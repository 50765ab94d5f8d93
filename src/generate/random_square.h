#pragma once

#include "app/board/random.h"
#include "app/board/square.h"
#include "app/ports/yielding.h"

namespace numorra {

/// A normal magic square at random: of order 5 to 50. Every square is about as
/// likely as every other, so that most are of no special kind.
///
/// A Metropolis walk (Metropolis and others 1953) over all numberings of the cells, from a random
/// one. The cost of a numbering is the sum of what its rows, columns and main diagonals are off the
/// total. A step proposes to exchange two neighbouring numbers, v and v + 1, or, one time in
/// twenty, any two; what raises the cost by d is done with the chance exp(-d / T). In the long run
/// all numberings of one cost are then equally likely, the magic squares among them.
///
/// The first magic square that such a walk meets is not yet a fair choice: squares that are easily
/// reached are favoured. So the walk goes on, and each step that finds it at a magic square ends it
/// there with a small chance. That chooses squares by the time that the walk spends at them, which
/// is the same for all; the walk comes to about ten of them in orders 5 to 10, a few in larger
/// ones.
///
/// Takes some 3 ms at order 5, 7 ms at order 10, 0.15 s at order 50. It yields all the while; what
/// a yield throws ends the walk.
Square<int> RandomNormalSquare(int order, Random& random, Yielding& yielding);

}  // namespace numorra
