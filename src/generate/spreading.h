#pragma once

#include "generate/patterned_square.h"

namespace numorra {

/// The passes that turn a flat square, every cell the same, into a varied magic one: small zero-sum
/// patterns are added to it with whole factors, chosen so that no cell falls below 1, and between
/// them the square is given quarter turns, which bring the patterns' fixed places to all four
/// sides.
///
///     D(k): corners and diagonals       E(c): corners and edges     ring: two rows, two columns
///     -1  .  . +1                       +1 . -2 +1                  -1  . +3 -2
///      . +2 -2  .   (k = 2)              . .  .  .                  -1  .  . +1
///      .  .  .  .                        . .  .  .                   .  .  .  .
///     +1 -2 +2 -1                       -1 . +2 -1                  +2  . -3 +1

/// D(k) for k = 2, 3, ... while k < n + 1 - k, with both signs, a quarter turn after each.
void SpreadCornerDiagonals(PatternedSquare& square);

/// E(c) for c = n - 1 down to 2, with both signs, a quarter turn after each.
void SpreadCornerEdges(PatternedSquare& square);

/// For each concentric square except the innermost, from the outermost inwards, up to 100 rounds:
/// raises the ring's smallest edge cells, then lowers the largest of the board's top row and right
/// column, then turns. A ring ends if that would leave a cell below 1. The maxima are taken from
/// the outermost edges on purpose, for inner rings too.
void SpreadRings(PatternedSquare& square);

}  // namespace numorra
