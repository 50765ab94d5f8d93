#include "app/play/manual_board.h"

#include "app/board/numbers.h"
#include "app/board/totals_check.h"
#include "words/say.h"

namespace numorra {
namespace {

constexpr int kLargestSimpleSize = 20;

}  // namespace

void BuildManualBoard(const CommandContext& context, BuildStage& stage) {
  Board& board = context.TheBoard;
  SquareBoxes& boxes = context.Boxes;
  Dialogs& dialogs = context.TheDialogs;
  board.SetOverlayShown(false);
  stage.ShowCount("");
  const std::int16_t order = ToInt16(Val(boxes.Size()));
  double sum = AsShown(Val(boxes.Sum()));
  if (order >= 1 && Int(sum / order) < kLowestBase) {
    sum = kLowestBase * order;
    boxes.SetSum(Str(sum));
  }
  if (const char* why = WhyNoBoardHas(order)) {
    dialogs.Tell(Say(why));
    return;
  }
  const std::int16_t base = ToInt16(BaseOf(sum, order));
  if (order > kLargestSimpleSize) dialogs.Tell(Say("solution may be too complex to solve"));

  {
    const BusyPointer busy(stage);
    const RedrawLock lock(board.grid);
    board.GridSize = order;
    board.BaseValue = base;
    board.TargetTotal = sum;
    board.Asked = board.SolveMode == ModeNormal ? Rules::Normal : Rules::Positive;
    board.SetupBoard();
    board.FillBoard(base + 1.0);
    board.ShowBoard();
    board.grid.SetVisible(true);
  }
  CheckTotals(board, dialogs);
  board.ReturnTo(1, 1);
}

}  // namespace numorra
