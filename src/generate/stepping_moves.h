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
/// such as those of the stepping construction (generate/stepping.h), or in an image of one.
struct SteppingMoves {
  Move Usual;  ///< one cell along a diagonal, or a knight's move
  Move Break;  ///< one or two cells along a row or a column, after each multiple of the order
};

/// The moves of a normal square of odd order; nothing if it has none.
std::optional<SteppingMoves> MovesOf(const PlacedNumbers& square);

/// Whether the usual move is one cell along a diagonal.
bool IsDiagonal(const SteppingMoves& moves);

/// Where a number goes, and why: "3 goes up and to the right". It is called by `name`.
std::string MoveSentence(const PlacedNumbers& square, const SteppingMoves& moves, int number,
                         const std::string& name);

/// One number per step.
std::vector<WalkStep> StepsByMoves(const PlacedNumbers& square, const SteppingMoves& moves);

}  // namespace numorra
