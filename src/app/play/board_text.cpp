#include "app/play/board_text.h"

#include "app/play/lay_out.h"
#include "puzzle/code.h"

namespace numorra {

std::string BoardText(const Board& board) {
  std::string text;
  if (!board.Shown()) return text;
  ForEachCell(board.GridSize, [&](int row, int column) {
    text += board.grid.Text(row, column);
    text += column < board.GridSize ? '\t' : '\n';
  });
  return text;
}

bool PasteBoard(const CommandContext& context, const std::string& text) {
  const auto read = ReadSquareOrCode(text);
  if (const auto* unreadable = std::get_if<Unreadable>(&read)) {
    context.TheDialogs.Tell(unreadable->Why);
    return false;
  }
  LayOut(context.TheBoard, context.Boxes, std::get<StoredSquare>(read));
  return true;
}

}  // namespace numorra
