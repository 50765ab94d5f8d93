#include "generate/solve_command.h"

#include "app/board/numbers.h"
#include "app/board/runtime_error.h"
#include "generate/proposal.h"

namespace numorra {

SolveCommand::SolveCommand(Board& board, SquareBoxes& boxes, Dialogs& dialogs, BuildStage& stage,
                           Random& random)
    : board_(board), boxes_(boxes), dialogs_(dialogs), stage_(stage), normal_(random, stage) {}

void SolveCommand::Auto() {
  if (Val(boxes_.Size()) >= kMaxOrder + 1) {
    dialogs_.Tell("grid size should be 50x50 or smaller");
    return;
  }
  BuildNormalSquare();
}

void SolveCommand::BuildNormalSquare() {
  const BusyPointer busy(stage_);
  const CounterShown counter(stage_);
  const std::int16_t order = ToInt16(Val(boxes_.Size()));
  const CellTable square = normal_.Build(order);

  const RedrawLock lock(board_.grid);
  board_.GridSize = order;
  board_.TargetTotal = order * (ToInt16(order * order + 1) / 2.0);
  boxes_.SetSum(Decimal(board_.TargetTotal));
  board_.SetupBoard();
  board_.BoardValues = square;
  board_.ShowBoard();
  board_.grid.SetVisible(true);
  board_.SetCurrentInBlock(1, 1);
}

}  // namespace numorra
