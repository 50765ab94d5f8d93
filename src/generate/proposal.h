#pragma once

#include "app/board/board.h"
#include "app/board/random.h"
#include "app/ports/square_boxes.h"

namespace numorra {

/// The normal total for the sum box, given the text of the size box. Empty if the number is too
/// large to be written.
std::string NormalTotalText(const std::string& size);

/// Proposes a size from 3 to 14 and a total by writing them into the boxes: in the Normal mode the
/// magic constant, in the Variable mode a random total from n x n + 1 to 2 x n x n. Never proposes
/// the size and random total that the boxes already hold.
void ProposeSquare(SquareBoxes& boxes, Mode mode, Random& random);

}  // namespace numorra
