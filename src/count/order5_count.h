#pragma once

#include <cstdint>
#include <vector>

#include "count/order5_diagonals.h"

namespace numorra {

/// Counts the magic squares of order 5 by what stands on their diagonals. No square is looked at by
/// itself; nevertheless the counts are exact.
///
/// For every filling of the diagonals (order5_diagonals.h), the fillings of the outer ring are
/// counted by the set of their numbers, in a table of 2^16. Every filling of the inner ring adds
/// the count of the complementary set. The rearrangements of the diagonals stand for up to 32
/// squares, which are 4 times the 8 images of one.
///
/// 26 minus every number makes another square, its complement. If there are no given cells, or only
/// 13 in the centre, the counts of two complementary sets are equal, and one of them is enough.
/// This leaves 145,362 sets for all squares.
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
  Order5Diagonals diagonals_;
  std::vector<DiagonalSet> sets_;
  std::int64_t imagesEach_;            ///< squares for each one found, by the rearrangements
  std::vector<std::uint16_t> counts_;  ///< fillings of the outer ring, by set; zeros between uses
  RingFiller::Fillings outer_, inner_;
};

}  // namespace numorra
