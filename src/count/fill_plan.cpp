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
      : plan_(plan),
        wish_(wish),
        map_(LineMap::Of(wish.Order(), wish.Kind)),
        lines_(wish.SemiMagic ? 2 * wish.Order() : map_.Lines()),
        equations_(wish.Givens.Size(), Equations()),
        open_(Slot(lines_)) {}

  void Run() {
    const int cells = wish_.Givens.Size();
    std::vector<char> used(Slot(cells + 1));
    plan_.LinesOf.resize(Slot(cells));
    for (int line = 0; line < lines_; ++line) {
      for (const int cell : map_.CellsOf(line))
        plan_.LinesOf[Slot(cell)].push_back(line);
      open_[Slot(line)] = static_cast<int>(map_.CellsOf(line).size());
      plan_.Rests.push_back(SumOf(line));
    }
    for (int cell = 0; cell < cells; ++cell) {
      const int number = wish_.Givens[cell];
      if (number == 0) continue;
      used[Slot(number)] = 1;
      Know(cell);
      for (const int line : plan_.LinesOf[Slot(cell)])
        plan_.Rests[Slot(line)] -= number;
    }
    for (int number = 1; number <= cells; ++number) {
      if (used[Slot(number)] == 0) plan_.Numbers.push_back(number);
    }
    if (static_cast<int>(plan_.Numbers.size()) > FillPlan::kMostGaps) return;
    plan_.Possible =
        plan_.Possible && WhyNoneOfKind(wish_.Kind, wish_.Order()).empty() && ChecksHold();
    while (plan_.Steps.size() < plan_.Numbers.size()) {
      const auto next = equations_.NextToFollow();
      Add(next.By ? Following(*next.By, next.Cell) : Chosen());
    }
  }

 private:
  std::int64_t SumOf(int line) const { return map_.SumOf(line, NormalTotal(wish_.Order())); }

  std::vector<LineEquation> Equations() const {
    std::vector<LineEquation> equations;
    for (int line = 0; line < lines_; ++line) {
      if (!map_.IsWhole(line, NormalTotal(wish_.Order()))) plan_.Possible = false;
      LineEquation equation{std::vector<std::int64_t>(Slot(wish_.Givens.Size())), SumOf(line)};
      for (const int cell : map_.CellsOf(line))
        equation.Factors[Slot(cell)] = 1;
      equations.push_back(std::move(equation));
    }
    return equations;
  }

  void Know(int cell) {
    equations_.Know(cell);
    for (const int line : plan_.LinesOf[Slot(cell)])
      --open_[Slot(line)];
  }

  /// Whether the equations between given cells hold.
  bool ChecksHold() const {
    return std::all_of(equations_.Checks().begin(), equations_.Checks().end(),
                       [&](const LineEquation& check) {
                         std::int64_t sum = 0;
                         for (int cell = 0; cell < wish_.Givens.Size(); ++cell)
                           sum += check.Factors[Slot(cell)] * wish_.Givens[cell];
                         return sum == check.Sum;
                       });
  }

  FillStep Following(const LineEquation& equation, int cell) const {
    FillStep step{.Cell = cell, .Follows = true, .Constant = equation.Sum};
    step.Divisor = equation.Factors[Slot(cell)];
    for (int other = 0; other < wish_.Givens.Size(); ++other) {
      const std::int64_t factor = equation.Factors[Slot(other)];
      if (other != cell && factor != 0) step.Terms.emplace_back(other, -factor);
    }
    return step;
  }

  FillStep Chosen() const {
    FillStep step{.Cell = BestChoice()};
    for (const int line : plan_.LinesOf[Slot(step.Cell)])
      step.Limits.push_back({line, open_[Slot(line)] - 1});
    return step;
  }

  /// Of the cells from which most others follow, one in lines that are nearly full, then one in
  /// many lines.
  int BestChoice() const {
    int best = -1;
    std::tuple<int, int, std::size_t> most;
    for (int cell = 0; cell < wish_.Givens.Size(); ++cell) {
      if (equations_.IsKnown(cell)) continue;
      if (wish_.Order() <= kLargestInReadingOrder) return cell;
      int least = std::numeric_limits<int>::max();
      for (const int line : plan_.LinesOf[Slot(cell)])
        least = std::min(least, open_[Slot(line)]);
      const std::tuple value{equations_.FollowersOf(cell), -least,
                             plan_.LinesOf[Slot(cell)].size()};
      if (best >= 0 && value <= most) continue;
      most = value;
      best = cell;
    }
    return best;
  }

  void Add(FillStep step) {
    if (!wish_.AllImages) {
      for (const Ascent& ascent : ascents_) {
        if (ascent.Larger == step.Cell && equations_.IsKnown(ascent.Smaller)) {
          step.Above.push_back(ascent.Smaller);
        }
        if (ascent.Smaller == step.Cell && equations_.IsKnown(ascent.Larger)) {
          step.Below.push_back(ascent.Larger);
        }
      }
    }
    Know(step.Cell);
    plan_.Steps.push_back(std::move(step));
  }

  FillPlan& plan_;
  const CountWish& wish_;
  const LineMap& map_;
  int lines_;
  std::vector<Ascent> ascents_ = FirstThatKeeps(wish_.Givens);
  LineEquations equations_;
  std::vector<int> open_;  ///< by line: the cells that are not full
};

}  // namespace

FillPlan::FillPlan(const CountWish& wish) {
  Planner(*this, wish).Run();
}

}  // namespace numorra
