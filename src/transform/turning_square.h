#pragma once

#include <array>
#include <cstddef>

#include "app/board/cell_table.h"

namespace numorra {

/// A square under construction that is turned again and again. Its numbers are not moved: a quarter
/// turn only changes the direction of the row and column axes, so it costs three additions. Rows
/// and columns count from 1 to the order and are not checked.
class TurningSquare {
 public:
  /// An order x order square of zeros. Throws SubscriptOutOfRange for orders outside 1..51.
  explicit TurningSquare(int order);

  /// The value block of `cells`.
  TurningSquare(const CellTable& cells, int order);

  int Order() const { return order_; }

  double& operator()(int row, int column) { return cells_[Index(row, column)]; }
  double operator()(int row, int column) const { return cells_[Index(row, column)]; }

  void Fill(double value) { cells_.fill(value); }

  /// A clockwise quarter turn: the value at (r, c) moves to (c, n + 1 - r).
  void RotateBoard90();

  /// The current square, in the value block of a table.
  CellTable Settled() const;

 private:
  static constexpr int kSide = CellTable::kSide;

  std::size_t Index(int row, int column) const {
    const int index = origin_ + row * rowStep_ + column * columnStep_;
    return static_cast<std::size_t>(index);
  }

  int order_;
  int origin_ = 0;
  int rowStep_ = kSide;
  int columnStep_ = 1;
  std::array<double, static_cast<std::size_t>(kSide) * kSide> cells_{};
};

}  // namespace numorra
