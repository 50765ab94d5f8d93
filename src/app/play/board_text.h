#pragma once

#include <string>

#include "app/board/board.h"
#include "app/ports/dialogs.h"
#include "app/ports/square_boxes.h"

namespace numorra {

/// The board as text for other programs: one line per row, numbers separated by tabs. Empty without
/// a board.
std::string BoardText(const Board& board);

/// Reads a text with ReadSquareOrCode and lays it out as a board to check and play. For any other
/// text, says what is wrong, changes nothing and returns false.
bool PasteBoard(Board& board, SquareBoxes& boxes, Dialogs& dialogs, const std::string& text);

}  // namespace numorra
