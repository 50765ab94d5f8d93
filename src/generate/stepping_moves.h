#pragma once

#include <optional>
#include <string>

#include "generate/placed_numbers.h"

namespace numorra {

/// So many rows down and columns to the right.
struct Move {
  int Rows;
  int Columns;

  bool operator==(const Move&) const = default;
};

/// How a square of the stepping construction (generate/stepping.h), or an image of one, goes from
/// number to number.
struct SteppingMoves {
  Move Diagonal;
  Move Break;  ///< after each multiple of the order
};

/// The moves of a normal square of an odd order, where there are such.
std::optional<SteppingMoves> MovesOf(const PlacedNumbers& square);

/// Where a number goes, and why there: "3 goes up and to the right".
std::string MoveSentence(const PlacedNumbers& square, const SteppingMoves& moves, int number);

}  // namespace numorra
