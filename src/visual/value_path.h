#pragma once

#include <vector>

#include "app/board/board.h"

namespace numorra {

/// A cell of the value block, with row and column from 1, and its value.
struct ValuedCell {
  int Row;
  int Column;
  double Value;
};

/// The cells from the smallest value to the largest, equal values in reading order. This path shows
/// how a square was made. Gaps are left out.
std::vector<ValuedCell> ValuePath(const Board& board);

}  // namespace numorra
