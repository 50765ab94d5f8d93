#pragma once

#include <array>

namespace numorra {

/// A letter of Conway's LUX method for orders 4k + 2: where the four numbers of a 2 x 2 block
/// stand, in their order: 0 upper left, 1 upper right, 2 lower left, 3 lower right.
struct LuxLetter {
  char Name;
  std::array<int, 4> Places;
};

/// The letter of a row of blocks, of m rows with m = 2k + 1, counted from 0: k + 1 rows of L, one
/// of U, the rest X.
const LuxLetter& LuxLetterOfRow(int row, int m);

/// The letter of one of m x m blocks, row and column from 0, once the U in the middle and the L
/// above it have changed places.
const LuxLetter& LuxLetterAt(int row, int column, int m);

/// Whether a cell, row and column from 0, lies on a diagonal of its 4 x 4 block: the cells that
/// take their numbers from the other end in the construction for orders 4k.
inline bool OnBlockDiagonal(int row, int column) {
  const int inRow = row % 4;
  const int inColumn = column % 4;
  return inRow == inColumn || inRow + inColumn == 3;
}

}  // namespace numorra
