#pragma once

#include <array>
#include <optional>
#include <string>

#include "app/board/cell_table.h"
#include "app/board/random.h"
#include "app/ports/yielding.h"

namespace numorra {

/// The quality of a 4 x 4 square with a given top row, judged by its twelve free cells only; the
/// top row itself may have zeros and repeated numbers.
enum class TopRowQuality {
  AllNew,     ///< all 1 or more, different from each other and from the top row
  Different,  ///< all 1 or more and different from each other
  Repeated,   ///< all 1 or more
  WithZeros,  ///< some may be 0
};

/// What a player should know about a square that is not of the best quality, a phrase;
/// empty for the best.
const char* RemarkOn(TopRowQuality quality);

struct TopRowSquare {
  CellTable Square;  ///< rows and columns 1..4
  double Total = 0;
  TopRowQuality Quality = TopRowQuality::AllNew;
};

using TopRow = std::array<int, 4>;

/// Four whole numbers from 0 to 9999, separated as in a date by commas, slashes, points, hyphens or
/// blanks; or a date of three numbers whose year, first or last, has four digits and gives two
/// numbers. Nothing for any other text.
std::optional<TopRow> ParseTopRow(const std::string& text);

/// A 4 x 4 magic square with the given top row (the birthday square of a date), of the best quality
/// possible. Once the top row is given, four numbers are free:
///
///     a  b  c  d      The bottom corners add up to b + c and the cells between them to a + d;
///     e  f  g  h      with m, n, f and e chosen every other cell follows from a line.
///     i  j  k  l
///     m  n  o  p
///
/// A search over the four, each from a random start with wrap-around, pruned as soon as a cell is
/// out of range, is complete: if it finds nothing, no such square exists. It yields regularly.
/// Nothing if no square exists even with zeros.
std::optional<TopRowSquare> FindTopRowSquare(const TopRow& top, Random& random, Yielding& yielding);

}  // namespace numorra
