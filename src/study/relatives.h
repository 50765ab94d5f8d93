#pragma once

#include <optional>

#include "app/board/random.h"
#include "app/board/square.h"

namespace numorra {

/// A member, by lot, of the family of a square: one permutation of its rows and of its columns that
/// commutes with reversing them, then one of the eight symmetries. Lines, both main diagonals and
/// opposite cells stay what they are, so a magic or an associative square gives another.
///
/// There are 2^(n/2) (n/2)! such permutations, the middle line of an odd order staying; a
/// permutation and its reverse give the same square. It is another square, not an image of this
/// one, wherever the order (from 4 on) and its numbers allow that; else another image. Nothing
/// when all its relatives look like itself.
std::optional<Square<double>> Varied(const Square<double>& square, Random& random);

/// smallest + largest - number, for each number, as it is shown.
Square<double> ComplementOf(const Square<double>& square);

}  // namespace numorra
