#pragma once

#include <string>

#include "app/board/board.h"

namespace numorra {

/// The state of the board in one line for the player: its order, its target, and how far it is from
/// being solved. Lines are right if their totals say so; before the totals are judged, if the cells
/// do.
///
///     4 x 4, sum 34: 5 cells to fill
///     4 x 4, sum 34: 3 of 10 lines right
///     4 x 4, sum 34: magic, 7 numbers more than once
///     4 x 4, sum 34: 8 of 10 lines right, Enter checks    (a number is being typed)
///     4 x 4, sum 34: 9 cells to fill, 1 to 16 each once   (a puzzle)
///     4 x 4, sum 34: magic, F9 to play                    (no check has been made)
///
/// Empty without a board. A board whose cells all hold the base value is not called magic, although
/// its lines are right.
std::string StateOf(const Board& board);

/// What a total adds up and how far it is off: "row 3 adds up to 33, 1 less than 34". Empty for
/// other cells.
std::string TipOfTotal(const Board& board, int row, int column);

/// Such a line of a board of this order and target: "4 x 4, sum 34: " and the progress.
std::string StateText(int order, double target, const std::string& progress);

}  // namespace numorra
