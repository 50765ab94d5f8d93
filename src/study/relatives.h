#pragma once

#include <optional>

#include "app/board/random.h"
#include "app/board/square.h"

namespace numorra {

/// A random member of the square's family: its rows and its columns permuted by one permutation
/// that commutes with reversal, then one of the eight symmetries. Rows, columns, both main
/// diagonals and pairs of opposite cells keep their numbers, so a magic or an associative square
/// stays one.
///
/// There are 2^(n/2) (n/2)! such permutations, which keep the middle line of an odd order; a
/// permutation and its reverse give the same square. The result is not an image of the square if
/// the order (from 4 on) and the numbers allow that, and otherwise another image. Nothing if all
/// images equal the square.
std::optional<Square<double>> Varied(const Square<double>& square, Random& random);

/// Replaces each number by smallest + largest - number, computed as it is shown.
Square<double> ComplementOf(const Square<double>& square);

}  // namespace numorra
