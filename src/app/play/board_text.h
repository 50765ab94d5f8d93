#pragma once

#include <string>

#include "app/board/command_context.h"

namespace numorra {

/// The board as other programs take it: a line a row, numbers separated by tabs. Empty without a
/// board.
std::string BoardText(const Board& board);

/// Shows a text as ReadSquareOrCode takes it as a board, to be checked and played, as LayOut does.
/// False, with a message that says what is wrong and nothing changed, for any other text.
bool PasteBoard(const CommandContext& context, const std::string& text);

}  // namespace numorra
