#pragma once

#include "app/board/cell_table.h"
#include "app/board/random.h"
#include "app/ports/yielding.h"

namespace numorra {

/// A random square with the same total as the given one: of whole numbers of 1 or more, and at most
/// 9 if `limitToNine`, like the given one. Takes an order x order square, 3 to 50, in the value
/// block.
///
/// A random walk adds zero-sum patterns, drawn at random, with a factor that is uniform over all
/// that the cells allow (hit and run: Smith 1984). No step prefers one square to another, so in the
/// long run all squares that the walk can reach are equally likely. Every cell is changed a fixed
/// number of times.
CellTable MixedSquare(const CellTable& square, int order, bool limitToNine, Random& random,
                      Yielding& yielding);

/// The square with about one cell in five lowered as far as a random exchange allows: until the
/// cell or another one of the exchange is 1. The arguments are those of MixedSquare.
CellTable WithSmallNumbers(const CellTable& square, int order, bool limitToNine, Random& random,
                           Yielding& yielding);

}  // namespace numorra
