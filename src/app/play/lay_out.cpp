#include "app/play/lay_out.h"

#include <algorithm>
#include <limits>

#include "app/board/numbers.h"
#include "app/board/orders.h"
#include "app/board/position.h"
#include "app/play/puzzle_aids.h"
#include "files/aim.h"

namespace numorra {
namespace {

Position LaidOut(const StoredSquare& square, const Aim& aim) {
  constexpr double kHighestBase = std::numeric_limits<std::int16_t>::max();
  const auto textOf = [&](int cell) {
    return square.Cells[cell] ? Decimal(*square.Cells[cell]) : std::string();
  };
  return {.Texts = SquareOf(square.Order(), textOf),
          .Givens = square.Givens,
          .Noted = square.Noted,
          .Target = aim.Target,
          .Base = ToInt16(std::min(kHighestBase, BaseOf(aim.Target, square.Order()))),
          .Asked = aim.Asked,
          .Checked = true,
          .Judged = true,
          .Row = 1,
          .Column = 1};
}

}  // namespace

StoredSquare StoredSquareOf(const Board& board) {
  const Position position = PositionOf(board);
  const auto number = [&](int cell) {
    const std::string& text = position.Texts[cell];
    return text.empty() ? std::nullopt : std::optional(Val(text));
  };
  return {.Cells = SquareOf(position.Order(), number),
          .Givens = position.Givens,
          .Total = position.Target,
          .Asked = position.Asked,
          .Noted = ShownNotes(board)};
}

void LayOut(Board& board, SquareBoxes& boxes, const StoredSquare& square) {
  const Aim aim = AimOf(square).value_or(Aim{AsShown(Val(boxes.Sum())), square.Asked});
  const Position position = LaidOut(square, aim);
  const int order = square.Order();
  const bool puzzle = !square.Givens.IsEmpty() || square.HasGaps();
  const bool normal =
      aim.Asked == Rules::Normal && aim.Target == static_cast<double>(NormalTotal(order));
  if (!puzzle || !normal) board.SolveMode = ModeVariable;
  boxes.SetSize(Decimal(order));
  boxes.SetSum(Decimal(aim.Target));
  Restore(board, Position());  // a new board: clear shades, marks and drawing
  Restore(board, position);
}

void ShowApart(Board& board, const StoredSquare& square) {
  Restore(board, LaidOut(square, AimOf(square).value_or(Aim{0, square.Asked})));
}

}  // namespace numorra
