#pragma once

#include <cstdint>
#include <vector>

namespace numorra {

/// Numbers 1 to 25 as bits: bit n is number n.
using NumberSet = std::uint32_t;

/// The numbers on the diagonals of squares of order 5: the centre, and the eight others.
struct DiagonalSet {
  int Centre;
  NumberSet Others;
};

/// Every such set that has squares' diagonals: its eight numbers fall into two fours that both add
/// up to 65 - centre. Ordered by centre, from `first` to `last`, then by the eight numbers. There
/// are 145,362 with centres 1 to 13.
std::vector<DiagonalSet> DiagonalSets(int first, int last);

}  // namespace numorra
