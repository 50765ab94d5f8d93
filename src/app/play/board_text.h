#pragma once

#include <optional>
#include <string>
#include <vector>

#include "app/board/board.h"
#include "app/ports/dialogs.h"
#include "app/ports/square_boxes.h"

namespace numorra {

/// The board as other programs take it: a line a row, numbers separated by tabs. Empty without a
/// board.
std::string BoardText(const Board& board);

/// The numbers of a square block of 3 x 3 to 50 x 50, by row: one line a row, separated by tabs, by
/// semicolons, by commas, or by blanks, the same on every line. Empty lines around it do not count.
/// Nothing when the text is not that, or holds a number of more than 15 digits.
std::optional<std::vector<std::vector<double>>> ParseBlock(const std::string& text);

/// Shows such a text as a board of the Variable mode, to be checked and played: the boxes follow,
/// the sum is that of the first row. False, with a message and nothing changed, for any other text.
/// Throws Overflow, with nothing changed, for numbers whose sum is beyond the program's.
bool PasteBoard(Board& board, SquareBoxes& boxes, Dialogs& dialogs, const std::string& text);

}  // namespace numorra
