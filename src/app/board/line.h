#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "app/board/place.h"

namespace numorra {

/// A line of n cells: a row, a column, or a diagonal, which continues on the opposite side when it
/// leaves the square. The i-th cell of line k is
///
///     row (k, i)    column (i, k)    falling (i, k + i)    rising (i, k - i)
///
/// with columns counted modulo n. The main diagonals are falling 0 and rising n - 1.
struct Line {
  enum Direction : std::uint8_t { Row, Column, Falling, Rising };
  Direction Way;
  int K;

  /// The index of its i-th cell in reading order, in a square of this order.
  int Cell(int i, int n) const;
};

/// The 2n + 2 lines that make a square magic: rows, columns, both main diagonals.
std::vector<Line> MagicLines(int order);

/// The 2n - 2 wrapped diagonals other than the main ones.
std::vector<Line> BrokenDiagonals(int order);

/// The name of the line: "row 2", "the broken diagonal that falls from row 1, column 3".
std::string NameOf(Line line, int order);

/// The places of its cells in a square of this order.
std::vector<Place> PlacesOf(Line line, int order);

/// The sum of valueOf(index) over its cells.
template <class Sum = std::int64_t, class ValueOf>
Sum SumOf(Line line, int order, ValueOf valueOf) {
  Sum sum = 0;
  for (int i = 0; i < order; ++i)
    sum += valueOf(line.Cell(i, order));
  return sum;
}

}  // namespace numorra
