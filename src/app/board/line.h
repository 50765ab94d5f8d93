#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "app/board/place.h"

namespace numorra {

/// A straight line of n cells: a row, a column, or a diagonal, which goes on at the other side of
/// the square where it leaves it. The i-th cell of line k is
///
///     row (k, i)    column (i, k)    falling (i, k + i)    rising (i, k - i)
///
/// with columns counted modulo n. The main diagonals are falling 0 and rising n - 1.
struct Line {
  enum Direction : std::uint8_t { Row, Column, Falling, Rising };
  Direction Way;
  int K;

  /// The index of its i-th cell in reading order, in a square of order n.
  int Cell(int i, int n) const;
};

/// The 2n + 2 lines that a magic square is judged by: rows, columns, both main diagonals.
std::vector<Line> MagicLines(int order);

/// The 2n - 2 wrapped diagonals that are no main ones.
std::vector<Line> BrokenDiagonals(int order);

/// What the line is called: "row 2", "the broken diagonal that falls from row 1, column 3".
std::string NameOf(Line line, int order);

/// Its cells in a square of the order.
std::vector<Place> PlacesOf(Line line, int order);

/// The sum over its cells of valueOf(index).
template <class ValueOf>
std::int64_t SumOf(Line line, int order, ValueOf valueOf) {
  std::int64_t sum = 0;
  for (int i = 0; i < order; ++i)
    sum += valueOf(line.Cell(i, order));
  return sum;
}

}  // namespace numorra
