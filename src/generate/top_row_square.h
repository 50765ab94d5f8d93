#pragma once

#include <array>
#include <functional>
#include <optional>
#include <string>

#include "app/board/cell_table.h"
#include "app/board/random.h"

namespace numorra {

/// What a 4 x 4 square with a given top row has to do without.
enum class TopRowQuality {
  AllDifferent,  ///< nothing: all cells different and 1 or more
  Repeated,      ///< some numbers stand more than once
  WithZeros,     ///< some numbers stand more than once and some may be 0
};

struct TopRowSquare {
  CellTable Square;  ///< rows and columns 1..4
  double Total = 0;
  TopRowQuality Quality = TopRowQuality::AllDifferent;
};

using TopRow = std::array<int, 4>;

/// Four whole numbers from 0 to 9999, separated by commas or blanks; nothing when the text is not
/// that.
std::optional<TopRow> ParseTopRow(const std::string& text);

/// A 4 x 4 magic square with the given top row (the birthday square of a date), the best that there
/// is. Once the top row is given, four numbers are free:
///
///     a  b  c  d      The bottom corners add up to b + c and the cells between them to a + d;
///     e  f  g  h      with m, n, f and e chosen every other cell follows from a line.
///     i  j  k  l
///     m  n  o  p
///
/// A search over the four, each from a random start with wrap-around, pruned as soon as a cell is
/// out of place, is complete: when it finds nothing there is nothing. `yield` is called now and
/// then. Nothing when even zeros do not help.
std::optional<TopRowSquare> FindTopRowSquare(const TopRow& top, Random& random,
                                             const std::function<void()>& yield);

}  // namespace numorra
