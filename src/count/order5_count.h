#pragma once

#include <array>
#include <cstdint>
#include <span>
#include <vector>

#include "app/board/square.h"
#include "count/diagonal_sets.h"
#include "count/kept_images.h"
#include "count/ring.h"

namespace numorra {

/// Counts the magic squares of order 5 by what stands on their diagonals. No square is looked at by
/// itself; nevertheless the counts are exact.
///
/// 1. Both diagonals are filled: a centre and eight numbers around it. The other 16 cells are two
///    rings of eight (ring.h). One has the rows 1 and 5 and the columns 2 and 4 as its sides, the
///    other the rows 2 and 4 and the columns 1 and 5. Row 3 and column 3 need no attention: all
///    numbers add up to five lines, so the middle line is right if the other four are.
/// 2. No line joins the rings. They only have to share out the 16 numbers that are left. So the
///    fillings of the first ring are counted by the set of their numbers, in a table of 2^16, and
///    every filling of the second ring adds the count of the complementary set.
/// 3. Of the 8! ways to put eight numbers on the diagonals, only one of each 32 is tried. Rows and
///    columns may be rearranged together if lines opposite each other stay opposite (8 ways), rows
///    alone may be turned upside down, and rows and columns be exchanged: this keeps the diagonals
///    and takes magic squares to magic squares. Given cells leave fewer of the 32.
/// 4. 26 minus every number makes another square, its complement, with other numbers on the
///    diagonals or the same. If there are no given cells, or only 13 in the centre, one of two
///    complementary sets counts twice. This leaves 145,362 sets.
class Order5Count {
 public:
  /// Counts the squares that hold the given numbers (0 is a gap), one of each set of images that
  /// keep the givens.
  explicit Order5Count(const Square<int>& givens);

  /// What the diagonals can hold. The counts of these sets add up to the count of all squares; with
  /// the squares of a set, those of its complement are counted.
  const std::vector<DiagonalSet>& Sets() const { return sets_; }
  std::int64_t CountOf(const DiagonalSet& set);

 private:
  static constexpr int kOthers = 8;

  /// Which of the eight numbers, from 0 in ascending order, is in which of kDiagonalCells.
  using Arrangement = std::array<std::uint8_t, kOthers>;

  /// Arrangements with the same four numbers on the falling diagonal, a set of bits 0 to 7.
  struct Split {
    std::uint32_t Falling;
    std::vector<Arrangement> Arrangements;
  };

  void SplitArrangements(const std::vector<Ascent>& ascents);
  std::int64_t WeightOf(const DiagonalSet& set) const;
  RingCells CellsOf(const std::array<int, kOthers>& ring,
                    std::span<const int, kRingNumbers> numbers) const;
  bool Fits(const std::array<int, kOthers>& numbers) const;

  Square<int> givens_;
  std::int64_t imagesEach_ = 1;  ///< squares for each one found, by the images of 3.
  bool complements_ = false;     ///< a set is counted for its complement, too
  std::vector<DiagonalSet> sets_;
  std::vector<Split> splits_;
  std::vector<std::uint16_t> counts_;  ///< fillings of the first ring, by set; zeros between uses
  RingFiller::Fillings outer_, inner_;
};

}  // namespace numorra
