#pragma once

#include <optional>
#include <string>
#include <vector>

#include "generate/construction_steps.h"
#include "generate/placed_numbers.h"

namespace numorra {

/// A move by rows down and columns to the right.
struct Move {
  int Rows;
  int Columns;

  bool operator==(const Move&) const = default;
};

/// The moves from number to number in a square of odd order that is made by steps with wrap-around,
/// such as those of the stepping construction (generate/stepping.h), or in an image of one. They
/// are at most half of the order long.
struct SteppingMoves {
  Move Usual;
  Move Break;  ///< after each multiple of the order
};

/// The moves of a normal square of odd order; nothing if they change.
std::optional<SteppingMoves> MovesOf(const PlacedNumbers& square);

/// Whether they are those of the stepping construction: one cell along a diagonal, and one along a
/// row or a column.
bool AreSteppings(const SteppingMoves& moves);

/// Where a number goes, and why: "3 goes up and to the right".
std::string MoveSentence(const PlacedNumbers& square, const SteppingMoves& moves, int number);

/// One number per step.
std::vector<WalkStep> StepsByMoves(const PlacedNumbers& square, const SteppingMoves& moves);

}  // namespace numorra
