#pragma once

#include <array>
#include <cstddef>

namespace numorra {

/// A cell of a pattern and the whole number that one application adds to it.
struct FlaggedCell {
  int Row;
  int Column;
  int Weight;
};

/// A zero-sum pattern: a few cells whose weights add up to zero in every row, every column and both
/// main diagonals. Adding any multiple of it to a magic square leaves the square magic. All other
/// cells of the board have weight 0 and are not listed.
class Pattern {
 public:
  static constexpr std::size_t kMaxCells = 16;

  /// Adds `weight` to the weight of the cell.
  void Add(int row, int column, int weight) {
    for (std::size_t i = 0; i < size_; ++i) {
      if (cells_[i].Row == row && cells_[i].Column == column) {
        cells_[i].Weight += weight;
        return;
      }
    }
    cells_.at(size_) = {row, column, weight};
    ++size_;
  }

  void Negate() {
    for (std::size_t i = 0; i < size_; ++i)
      cells_[i].Weight = -cells_[i].Weight;
  }

  const FlaggedCell* begin() const { return cells_.data(); }
  const FlaggedCell* end() const { return cells_.data() + size_; }

 private:
  std::array<FlaggedCell, kMaxCells> cells_{};
  std::size_t size_ = 0;
};

}  // namespace numorra
