#pragma once

#include "app/board/board.h"
#include "app/ports/square_boxes.h"
#include "files/stored_square.h"

namespace numorra {

/// The board as a stored square: its numbers, gaps, givens and shown notes, target and rules.
StoredSquare StoredSquareOf(const Board& board);

/// Shows a stored square as a board, recounted without a message and ready to play; the boxes
/// follow. The mode becomes Variable, but stays Normal for a puzzle by the normal rules: a board
/// with gaps or givens. A base that does not fit into 16 bits is limited to that range.
///
/// Its target and rules come from AimOf, or else from the sum box.
void LayOut(Board& board, SquareBoxes& boxes, const StoredSquare& square);

/// Shows a stored square in the same way on a board of its own that no session plays, such as one
/// for a picture.
void ShowApart(Board& board, const StoredSquare& square);

}  // namespace numorra
