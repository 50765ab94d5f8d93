#pragma once

#include "app/board/cell_table.h"
#include "app/board/random.h"
#include "app/ports/yielding.h"

namespace numorra {

/// A square with the total of the one given, at random: of whole numbers of 1 or more, and of at
/// most 9 where `limitToNine`, as the given one is. Takes an order x order square, 3 to 50, in the
/// value block.
///
/// A walk from square to square adds a zero-sum pattern at random with a factor that is uniform
/// over all that its cells allow (hit and run: Smith 1984). No step prefers a square to another, so
/// in the long run all squares that the walk reaches are equally likely. Every cell is moved a
/// fixed number of times.
CellTable MixedSquare(const CellTable& square, int order, bool limitToNine, Random& random,
                      Yielding& yielding);

}  // namespace numorra
