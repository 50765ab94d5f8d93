#include "app/play/board_text.h"

#include <algorithm>
#include <limits>

#include "app/board/decimal_sum.h"
#include "app/board/numbers.h"
#include "app/board/orders.h"
#include "files/square_text.h"

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

bool PasteBoard(Board& board, SquareBoxes& boxes, Dialogs& dialogs, const std::string& text) {
  const auto read = ReadSquareText(text);
  if (const auto* unreadable = std::get_if<Unreadable>(&read)) {
    dialogs.Tell(unreadable->Why);
    return false;
  }
  const auto& rows = std::get<NumberRows>(read);
  const auto order = static_cast<std::int16_t>(rows.size());
  DecimalSum sum;
  for (const double number : rows.front())
    sum.Add(number);
  CellTable cells;
  ForEachCell(order, [&](int r, int c) {
    cells(r, c) = rows[static_cast<std::size_t>(r - 1)][static_cast<std::size_t>(c - 1)];
  });
  constexpr double kHighestBase = std::numeric_limits<std::int16_t>::max();
  board.SolveMode = ModeVariable;
  board.BaseValue = ToInt16(std::min(kHighestBase, BaseOf(sum.Total(), order)));
  boxes.SetSize(Decimal(order));
  boxes.SetSum(Decimal(sum.Total()));
  board.ShowSquare(order, sum.Total(), cells);
  return true;
}

}  // namespace numorra
