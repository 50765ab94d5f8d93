#pragma once

#include <array>
#include <cstddef>

#include "app/board/orders.h"
#include "app/board/runtime_error.h"

namespace numorra {

/// One number for each cell of the grid, addressed like the grid: the value block is rows and
/// columns 1..n, its totals are in row 0, column 0 and the corners. Both indices run from 0 to 52
/// (the largest order, two frame lines and a spare one); others throw SubscriptOutOfRange.
class CellTable {
 public:
  static constexpr int kSide = kMaxOrder + 3;

  double& operator()(int row, int column) { return cells_[Index(row, column)]; }
  double operator()(int row, int column) const { return cells_[Index(row, column)]; }

  /// The row's numbers by column, for loops over a whole block; the column is not checked.
  double* Row(int row) { return &cells_[Index(row, 0)]; }
  const double* Row(int row) const { return &cells_[Index(row, 0)]; }

 private:
  static std::size_t Index(int row, int column) {
    if (row < 0 || row >= kSide || column < 0 || column >= kSide) {
      throw RuntimeError(Fault::SubscriptOutOfRange);
    }
    return static_cast<std::size_t>(row) * kSide + static_cast<std::size_t>(column);
  }

  std::array<double, static_cast<std::size_t>(kSide) * kSide> cells_{};
};

}  // namespace numorra
