#pragma once

#include "app/board/board.h"
#include "app/ports/square_boxes.h"
#include "files/stored_square.h"

namespace numorra {

/// The board as it is stored: its numbers, gaps and givens, target and rules.
StoredSquare StoredSquareOf(const Board& board);

/// Shows a stored square as a board, recounted without a word and open to play; the boxes follow.
/// The mode becomes Variable, but stays Normal for a puzzle by the normal rules: a board with gaps
/// or givens. A base above what 16 bits take is held there.
///
/// Its target and rules are its aim (AimOf), or what the sum box says.
void LayOut(Board& board, SquareBoxes& boxes, const StoredSquare& square);

}  // namespace numorra
