#pragma once

#include <string>

#include "app/board/board.h"
#include "app/ports/dialogs.h"
#include "app/ports/square_boxes.h"

namespace numorra {

/// The board as other programs take it: a line a row, numbers separated by tabs. Empty without a
/// board.
std::string BoardText(const Board& board);

/// Shows a text as ReadSquareOrCode takes it as a board, to be checked and played, as LayOut does.
/// False, with a message that says what is wrong and nothing changed, for any other text.
bool PasteBoard(Board& board, SquareBoxes& boxes, Dialogs& dialogs, const std::string& text);

}  // namespace numorra
