#pragma once

#include <string>

#include "app/board/command_context.h"

namespace numorra {

/// The board as text for other programs: one line per row, numbers separated by tabs. Empty without
/// a board.
std::string BoardText(const Board& board);

/// Reads a text with ReadSquareOrCode and lays it out as a board to check and play. For any other
/// text, says what is wrong, changes nothing and returns false.
bool PasteBoard(const CommandContext& context, const std::string& text);

}  // namespace numorra
