#pragma once

#include <optional>
#include <vector>

#include "app/board/random.h"
#include "app/board/square.h"

/// Ways to move a square's numbers to other places, drawn at random. Nothing if the order has no
/// such way.
namespace numorra {

/// An order of the lines, from 0, in which opposite lines stay opposite: pairs exchange places, and
/// so do the two lines of a pair. The middle line of an odd order stays. There are 2^(n/2) (n/2)!
/// such orders.
std::vector<int> DrawOrderOfOpposites(int order, Random& random);

/// The cell (i, j) of the result comes from (rows[i], columns[j]).
Square<double> WithLinesFrom(const Square<double>& square, const std::vector<int>& rows,
                             const std::vector<int>& columns);

/// Moves rows round by any number of lines, and columns by another.
std::optional<Square<double>> MovedRound(const Square<double>& square, Random& random);

/// Moves (i, j) to (k i, k j) modulo n, counted from the centre, for a k coprime to n.
std::optional<Square<double>> WithPlacesMultiplied(const Square<double>& square, Random& random);

/// Makes wrapped diagonals rows and columns: (i + j, i - j) modulo n goes to (i, j), counted from
/// the centre. For odd orders.
std::optional<Square<double>> WithDiagonalsAsLines(const Square<double>& square, Random& random);

/// Puts the rows in one order of opposites and the columns in another.
std::optional<Square<double>> WithOppositesExchanged(const Square<double>& square, Random& random);

/// Pairs of rows half the order apart exchange places, odd ones and even ones among themselves, and
/// so do the two rows of a pair; the same for columns. For orders that are multiples of 4.
std::optional<Square<double>> WithHalvesExchanged(const Square<double>& square, Random& random);

/// In every ring around a square of order 3 or 4, opposite pairs of the top and bottom sides
/// exchange places, corners excepted, and so do those of the left and right sides; the square
/// inside each ring is turned or mirrored. For orders from 5 on.
std::optional<Square<double>> WithRingsExchanged(const Square<double>& square, Random& random);

}  // namespace numorra
