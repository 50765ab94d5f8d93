#pragma once

#include <vector>

#include "app/board/board.h"

namespace numorra {

/// The numbers from 1 to kMostNoted in the value cells.
NoteSet NumbersOnBoard(const Board& board);

/// The cells that share their number with another cell, in reading order, on a board with givens
/// that asks for different numbers; none on others.
std::vector<Place> EqualNumbersOn(const Board& board);

/// The numbers that the player of a puzzle has to place, and those of them that are on the board.
struct NumbersToPlace {
  std::vector<int> Numbers;  ///< ascending
  NoteSet Placed;

  int Missing() const;
  bool operator==(const NumbersToPlace&) const = default;
};

/// The numbers 1 to n x n that are not given, on a board by the normal rules that has givens or
/// gaps; no numbers on others.
NumbersToPlace NumbersToPlaceOn(const Board& board);

/// The notes as the board shows them: those of its gaps, by the normal rules without numbers that
/// are on the board.
Notes ShownNotes(const Board& board);

/// Updates what the grid shows besides the numbers: the marks of equal numbers, and which numbers
/// are no longer shown as notes. Called after every command.
void ShowAids(Board& board);

}  // namespace numorra
