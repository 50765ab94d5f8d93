#include "app/play/manual_board.h"

#include <algorithm>

#include "app/board/numbers.h"
#include "app/board/totals_check.h"

namespace numorra {
namespace {

constexpr int kLowestBase = 2;
constexpr int kLargestSimpleSize = 20;

}  // namespace

void BuildManualBoard(Board& board, SquareBoxes& boxes, Dialogs& dialogs, BuildStage& stage) {
  board.SetOverlay(OverlayKind::None);
  stage.ShowCount("");
  const std::int16_t order = ToInt16(Val(boxes.Size()));
  double sum = Val(boxes.Sum());
  if (order >= 1 && Int(sum / order) < kLowestBase) {
    sum = kLowestBase * order;
    boxes.SetSum(Str(sum));
  }
  if (order < 3) {
    dialogs.Tell("grid size should be 3x3 or bigger");
    return;
  }
  if (order > kMaxOrder) {
    dialogs.Tell("grid size should be 50x50 or smaller");
    return;
  }
  const std::int16_t base = ToInt16(Int(sum / order));
  if (order > kLargestSimpleSize) dialogs.Tell("solution may be too complex to solve");

  {
    const BusyPointer busy(stage);
    const RedrawLock lock(board.grid);
    board.GridSize = order;
    board.BaseValue = base;
    board.TargetTotal = sum;
    board.SetupBoard();
    board.FillBoard(base + 1.0);
    board.ShowBoard();
    board.grid.SetVisible(true);
  }
  CheckTotals(board, dialogs);
  board.ReturnTo(1, 1);
}

}  // namespace numorra
