#include "count/fill_plan.h"

#include <algorithm>
#include <limits>
#include <tuple>

#include "app/board/orders.h"
#include "puzzle/line_map.h"

namespace numorra {
namespace {

constexpr int kLargestInReadingOrder = 4;

std::size_t Slot(int index) {
  return static_cast<std::size_t>(index);
}

/// Builds the steps of a plan.
class Planner {
 public:
  Planner(FillPlan& plan, const CountWish& wish)
      : plan_(plan), wish_(wish), map_(LineMap::Of(wish.Order(), wish.Kind)) {}

  void Run() {
    TakeGivens();
    if (static_cast<int>(gaps_.size()) > FillPlan::kMostGaps) return;
    LineEquations equations(static_cast<int>(gaps_.size()), Equations());
    plan_.Possible = plan_.Possible && equations.AreConsistent() &&
                     WhyNoneOfKind(wish_.Kind, wish_.Order()).empty();
    while (plan_.Steps.size() < gaps_.size()) {
      const auto next = equations.NextToFollow();
      const int gap = next.By ? next.Cell : BestChoice(equations);
      Add(next.By ? Following(*next.By, gap) : Chosen(gap), equations);
      equations.Know(gap);
      for (const int line : LinesOf(gap))
        --open_[Slot(line)];
    }
  }

 private:
  const std::vector<int>& LinesOf(int gap) const { return plan_.LinesOf[Slot(gaps_[Slot(gap)])]; }

  void TakeGivens() {
    const int cells = wish_.Givens.Size();
    const int lines = wish_.SemiMagic ? 2 * wish_.Order() : map_.Lines();
    const std::int64_t total = NormalTotal(wish_.Order());
    std::vector<char> used(Slot(cells + 1));
    plan_.LinesOf.resize(Slot(cells));
    for (int line = 0; line < lines; ++line) {
      if (!map_.IsWhole(line, total)) plan_.Possible = false;
      plan_.Rests.push_back(map_.SumOf(line, total));
      open_.push_back(0);
      for (const int cell : map_.CellsOf(line)) {
        plan_.LinesOf[Slot(cell)].push_back(line);
        plan_.Rests.back() -= wish_.Givens[cell];
        open_.back() += wish_.Givens[cell] == 0 ? 1 : 0;
      }
    }
    for (int cell = 0; cell < cells; ++cell) {
      if (wish_.Givens[cell] == 0) gaps_.push_back(cell);
      used[Slot(wish_.Givens[cell])] = 1;
    }
    for (int number = 1; number <= cells; ++number) {
      if (used[Slot(number)] == 0) plan_.Numbers.push_back(number);
    }
  }

  /// The lines' equations in the gaps.
  std::vector<LineEquation> Equations() const {
    std::vector<LineEquation> equations;
    for (const std::int64_t rest : plan_.Rests)
      equations.push_back({std::vector<std::int64_t>(gaps_.size()), rest});
    for (std::size_t gap = 0; gap < gaps_.size(); ++gap) {
      for (const int line : LinesOf(static_cast<int>(gap)))
        equations[Slot(line)].Factors[gap] = 1;
    }
    return equations;
  }

  FillStep Following(const LineEquation& equation, int gap) const {
    FillStep step{.Cell = gaps_[Slot(gap)], .Follows = true, .Constant = equation.Sum};
    step.Divisor = equation.Factors[Slot(gap)];
    for (std::size_t other = 0; other < gaps_.size(); ++other) {
      const std::int64_t factor = equation.Factors[other];
      if (other != Slot(gap) && factor != 0) step.Terms.emplace_back(gaps_[other], -factor);
    }
    return step;
  }

  FillStep Chosen(int gap) const {
    FillStep step{.Cell = gaps_[Slot(gap)]};
    for (const int line : LinesOf(gap))
      step.Limits.push_back({line, open_[Slot(line)] - 1});
    return step;
  }

  /// Of the cells from which most others follow, one in lines that are nearly full, then one in
  /// many lines.
  int BestChoice(const LineEquations& equations) const {
    int best = -1;
    std::tuple<int, int, std::size_t> most;
    for (int gap = 0; gap < static_cast<int>(gaps_.size()); ++gap) {
      if (equations.IsKnown(gap)) continue;
      if (wish_.Order() <= kLargestInReadingOrder) return gap;
      int least = std::numeric_limits<int>::max();
      for (const int line : LinesOf(gap))
        least = std::min(least, open_[Slot(line)]);
      const std::tuple value{equations.FollowersOf(gap), -least, LinesOf(gap).size()};
      if (best >= 0 && value <= most) continue;
      most = value;
      best = gap;
    }
    return best;
  }

  /// Adds the step with its conditions between full gaps. Given cells have none: an image that
  /// keeps them moves none of them.
  void Add(FillStep step, const LineEquations& equations) {
    const auto isFull = [&](int cell) {
      const auto gap = std::find(gaps_.begin(), gaps_.end(), cell);
      return gap != gaps_.end() && equations.IsKnown(static_cast<int>(gap - gaps_.begin()));
    };
    for (const Ascent& ascent : ascents_) {
      if (ascent.Larger == step.Cell && isFull(ascent.Smaller)) {
        step.Above.push_back(ascent.Smaller);
      }
      if (ascent.Smaller == step.Cell && isFull(ascent.Larger)) {
        step.Below.push_back(ascent.Larger);
      }
    }
    plan_.Steps.push_back(std::move(step));
  }

  FillPlan& plan_;
  const CountWish& wish_;
  const LineMap& map_;
  std::vector<Ascent> ascents_ =
      wish_.AllImages ? std::vector<Ascent>() : FirstThatKeeps(wish_.Givens);
  std::vector<int> gaps_;  ///< their cells; the equations name them by their places here
  std::vector<int> open_;  ///< by line: the gaps that are not full
};

}  // namespace

FillPlan::FillPlan(const CountWish& wish) {
  Planner(*this, wish).Run();
}

}  // namespace numorra
