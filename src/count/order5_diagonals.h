#pragma once

#include <array>
#include <cstdint>
#include <vector>

#include "app/board/square.h"
#include "count/diagonal_sets.h"
#include "count/kept_images.h"
#include "count/ring.h"

namespace numorra {

/// The ways to fill the diagonals of a square of order 5, and what they leave for the other cells.
///
/// A centre and eight numbers around it stand on the diagonals. The other 16 cells are two rings of
/// eight (ring.h). The outer one has the rows 1 and 5 and the columns 2 and 4 as its sides, the
/// inner one the rows 2 and 4 and the columns 1 and 5. Row 3 and column 3 need no attention: all
/// numbers add up to five lines, so the middle line is right if the other four are. Hence no line
/// joins the rings, which only have to share out the 16 numbers that are left.
///
/// Of the 8! ways to put eight numbers on the diagonals, only one of each 32 is tried. Rows and
/// columns may be rearranged together if lines opposite each other stay opposite (8 ways), rows
/// alone may be turned upside down, and rows and columns be exchanged: this keeps the diagonals and
/// takes magic squares to magic squares. Given cells leave fewer of the 32.
class Order5Diagonals {
 public:
  /// For squares that hold the given numbers; 0 is a gap.
  explicit Order5Diagonals(const Square<int>& givens);

  /// What stands on the diagonals. With `complements`, only one of each two sets that are 26 minus
  /// each other is in the list, where the given cells allow it.
  std::vector<DiagonalSet> Sets(bool complements) const;

  /// For how many sets one of such a list stands: 2 with its complement, otherwise 1.
  int WeightOf(const DiagonalSet& set) const;

  /// Those of the 32 rearrangements that keep the given cells.
  const std::vector<CellMap>& Maps() const { return maps_; }

  /// One way to fill the diagonals, and the sums of the rings' sides.
  struct Filling {
    int Centre;
    std::array<int, 8> Numbers;  ///< in kCells
    RingSums Outer, Inner;

    /// The cells of the falling diagonal without the centre, then those of the rising one.
    static constexpr std::array<int, 8> kCells = {0, 6, 18, 24, 4, 8, 16, 20};
  };

  /// The fillings of a set, one of each that Maps takes to each other.
  std::vector<Filling> FillingsOf(const DiagonalSet& set) const;

  /// The cells of the rings in the order of RingCells, clockwise from the top left.
  static constexpr std::array<int, 8> kOuterRing = {1, 2, 3, 13, 23, 22, 21, 11};
  static constexpr std::array<int, 8> kInnerRing = {5, 7, 9, 14, 19, 17, 15, 10};

  /// What the cells of a ring can hold: a given cell its number, other cells none of the givens.
  RingCells CellsOf(const std::array<int, 8>& ring, const RingNumbers& numbers) const;

 private:
  /// Which of the eight numbers, from 0 in ascending order, is in which of Filling::kCells.
  using Arrangement = std::array<std::uint8_t, 8>;

  /// Arrangements with the same four numbers on the falling diagonal, a set of bits 0 to 7.
  struct Split {
    std::uint32_t Falling;
    std::vector<Arrangement> Arrangements;
  };

  void SplitArrangements();
  bool Fits(const std::array<int, 8>& numbers) const;

  Square<int> givens_;
  std::vector<CellMap> maps_;
  bool canComplement_ = false;  ///< 26 minus every number keeps the givens
  std::vector<Split> splits_;
};

/// The 16 numbers that a set leaves for the rings.
RingNumbers NumbersBeside(const DiagonalSet& set);

}  // namespace numorra
