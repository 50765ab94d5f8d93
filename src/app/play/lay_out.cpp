#include "app/play/lay_out.h"

#include <algorithm>
#include <limits>

#include "app/board/numbers.h"
#include "app/board/orders.h"
#include "app/board/position.h"
#include "files/aim.h"

namespace numorra {
StoredSquare StoredSquareOf(const Board& board) {
  const Position position = PositionOf(board);
  StoredSquare square{.Order = position.Order,
                      .Givens = position.Givens,
                      .Total = position.Target,
                      .Asked = position.Asked};
  for (const std::string& text : position.Texts) {
    square.Cells.push_back(text.empty() ? std::nullopt : std::optional(Val(text)));
  }
  return square;
}

void LayOut(Board& board, SquareBoxes& boxes, const StoredSquare& square) {
  constexpr double kHighestBase = std::numeric_limits<std::int16_t>::max();
  const Aim aim = AimOf(square).value_or(Aim{AsShown(Val(boxes.Sum())), square.Asked});
  Position position{.Order = static_cast<std::int16_t>(square.Order),
                    .Target = aim.Target,
                    .Base = ToInt16(std::min(kHighestBase, BaseOf(aim.Target, square.Order))),
                    .Asked = aim.Asked,
                    .Givens = square.Givens,
                    .Checked = true,
                    .Judged = true,
                    .Row = 1,
                    .Column = 1};
  for (const auto& cell : square.Cells)
    position.Texts.push_back(cell ? Decimal(*cell) : "");
  const bool puzzle = !square.Givens.empty() || std::find(square.Cells.begin(), square.Cells.end(),
                                                          std::nullopt) != square.Cells.end();
  const bool normal =
      aim.Asked == Rules::Normal && aim.Target == static_cast<double>(NormalTotal(square.Order));
  if (!puzzle || !normal) board.SolveMode = ModeVariable;
  boxes.SetSize(Decimal(square.Order));
  boxes.SetSum(Decimal(aim.Target));
  Restore(board, Position());  // a new board: clear shades, marks and drawing
  Restore(board, position);
}

}  // namespace numorra
