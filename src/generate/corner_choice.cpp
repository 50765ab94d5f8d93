#include "generate/corner_choice.h"

#include "app/board/numbers.h"
#include "generate/variable_plan.h"

namespace numorra {
namespace {

constexpr int kMostCandidates = 100;
constexpr int kLargestSizeWithout = 4;

void AddCandidate(ListBoy& candidates, int value) {
  candidates.Additem(Decimal(value));
  candidates.SetItemData(candidates.ListCount() - 1, value);
}

}  // namespace

void OfferCorners(Board& board, SquareBoxes& boxes, ListBoy& candidates, ListBox& choice) {
  choice.AddItem(kAnyCorner);  // first, so that it is there whatever the boxes say
  candidates.Clear();
  const double size = Val(boxes.Size());
  if (size >= 1) {
    const double sum = Val(boxes.Sum());
    const VariablePlan plan = PlanVariableSquare(size, sum, false, true);
    board.BaseValue = plan.BaseValue;
    if (plan.Sum != sum) boxes.SetSum(Decimal(plan.Sum));
    if (plan.GridSize > kLargestSizeWithout) {
      const int highest = 2 * plan.BaseValue - 1;
      const int step = (highest + kMostCandidates - 1) / kMostCandidates;
      for (int value = 1; value <= highest; value += step)
        AddCandidate(candidates, value);
      if (candidates.FindItemData(plan.BaseValue, false, 0) == -1) {
        AddCandidate(candidates, plan.BaseValue);
      }
      candidates.SortItemDataAscending();
    }
  }
  candidates.FillListBox(choice);
}

}  // namespace numorra
