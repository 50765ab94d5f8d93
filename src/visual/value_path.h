#pragma once

#include <vector>

#include "app/board/board.h"

namespace numorra {

/// A cell of the value block, rows and columns from 1, and what it holds.
struct ValuedCell {
  int Row;
  int Column;
  double Value;
};

/// The cells from the smallest value to the largest, equal values in reading order: the path that
/// shows how a square was made. Gaps are not on it.
std::vector<ValuedCell> ValuePath(const Board& board);

}  // namespace numorra
