#pragma once

#include <optional>
#include <string>

#include "generate/placed_numbers.h"

namespace numorra {

/// A move by rows down and columns to the right.
struct Move {
  int Rows;
  int Columns;

  bool operator==(const Move&) const = default;
};

/// The moves from number to number in a square of the stepping construction (generate/stepping.h),
/// or in an image of one.
struct SteppingMoves {
  Move Diagonal;
  Move Break;  ///< after each multiple of the order
};

/// The moves of a normal square of odd order; nothing if it has none.
std::optional<SteppingMoves> MovesOf(const PlacedNumbers& square);

/// Where a number goes, and why: "3 goes up and to the right".
std::string MoveSentence(const PlacedNumbers& square, const SteppingMoves& moves, int number);

}  // namespace numorra
