#include "generate/corner_choice.h"

#include "app/board/numbers.h"
#include "generate/corner_seed.h"
#include "words/say.h"

namespace numorra {
namespace {

constexpr int kMostCandidates = 100;
constexpr int kSmallestWithCorner = 4;
constexpr int kSmallestWithChoice = 5;

/// The smallest of 1, 2, 5, 10, 20, 50, ... that reaches `highest` in at most kMostCandidates
/// steps.
int RoundStep(int highest) {
  int step = 1;
  for (int times = 0; highest / step > kMostCandidates; ++times)
    step = times % 3 == 1 ? step / 2 * 5 : step * 2;
  return step;
}

void AddCandidate(ListBoy& candidates, int value) {
  candidates.Additem(Decimal(value));
  candidates.SetItemData(candidates.ListCount() - 1, value);
}

}  // namespace

std::string WhyNotTheCorner(double corner, const VariablePlan& plan) {
  if (plan.GridSize < kSmallestWithCorner) return Say("a 3x3 square takes no corner value");
  return Say(
      "corner value %1 is out of reach for size %2 and sum %3, which allow whole numbers from 1 to "
      "%4",
      Written(corner), plan.GridSize, plan.GridSize * plan.BaseValue,
      HighestCorner(plan.GridSize, plan.BaseValue));
}

void OfferCorners(Board& board, SquareBoxes& boxes, ListBoy& candidates, ListBox& choice) {
  choice.AddItem(Say(kAnyCorner));  // first, so that it is offered whatever the boxes contain
  candidates.Clear();
  const double size = Val(boxes.Size());
  if (size >= 1) {
    const double sum = Val(boxes.Sum());
    const VariablePlan plan = PlanVariableSquare(size, sum, false, true);
    board.BaseValue = plan.BaseValue;
    if (plan.Sum != sum) boxes.SetSum(Decimal(plan.Sum));
    if (plan.GridSize >= kSmallestWithChoice) {
      const int highest = 2 * plan.BaseValue - 1;
      const int step = RoundStep(highest);
      if (step > 1) AddCandidate(candidates, 1);
      for (int value = step; value <= highest; value += step)
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
