#pragma once

#include <optional>
#include <vector>

#include "app/board/random.h"
#include "app/board/square.h"

/// Ways to move a square's numbers to other places, drawn at random. Nothing where the
/// order has no such way.
namespace numorra {

/// Where each line goes, from 0: pairs of opposite lines exchange places, and the lines of a pair;
/// the middle line of an odd order stays. There are 2^(n/2) (n/2)! such orders.
std::vector<int> DrawOrderOfOpposites(int order, Random& random);

/// The cell (i, j) of the result comes from (rows[i], columns[j]).
Square<double> WithLinesFrom(const Square<double>& square, const std::vector<int>& rows,
                             const std::vector<int>& columns);

/// Rows moved round by any number of lines, and columns by another.
std::optional<Square<double>> MovedRound(const Square<double>& square, Random& random);

/// (i, j) to (k i, k j) modulo n, counted from the centre, for a k without a common divisor with n.
std::optional<Square<double>> WithPlacesMultiplied(const Square<double>& square, Random& random);

/// The wrapped diagonals as rows and columns, (i + j, i - j) modulo n to (i, j), counted from the
/// centre, in odd orders.
std::optional<Square<double>> WithDiagonalsAsLines(const Square<double>& square, Random& random);

/// Rows in one order of opposites, columns in another.
std::optional<Square<double>> WithOppositesExchanged(const Square<double>& square, Random& random);

/// Pairs of rows half the order apart exchange places with each other, odd ones and even ones among
/// themselves, and the rows of a pair; the same of columns. In orders that are multiples of 4.
std::optional<Square<double>> WithHalvesExchanged(const Square<double>& square, Random& random);

/// In every ring around a square of order 3 or 4, the pairs above each other between the corners
/// exchange places, and so do those beside each other; the square within each ring is turned or
/// mirrored. In orders from 5 on.
std::optional<Square<double>> WithRingsExchanged(const Square<double>& square, Random& random);

}  // namespace numorra
