#pragma once

#include <algorithm>
#include <string>
#include <vector>

#include "puzzle/line_map.h"
#include "puzzle/puzzle.h"
#include "puzzle/step.h"

namespace numorra {

/// Follows a chain with pencil marks: every gap starts with all numbers that the board leaves it,
/// and each step must follow from the marks as the steps before left them. Sums are found by
/// trying. For boards with numbers of a few hundred at most.
class ChainJudge {
 public:
  explicit ChainJudge(const Puzzle& puzzle)
      : puzzle_(puzzle),
        normal_(puzzle.Asked == Rules::Normal),
        map_(LineMap::Of(puzzle.Order(), puzzle.Kind)) {
    for (int cell = 0; cell < puzzle.Cells.Size(); ++cell) {
      Numbers marks;
      for (std::int64_t number = 1; number <= puzzle.Most(); ++number) {
        if (!normal_ || !Contains(puzzle.Cells, number)) marks.push_back(number);
      }
      now_.push_back({puzzle.Cells[cell], std::move(marks)});
    }
  }

  /// What is wrong with a chain to a number of the solution; empty if nothing is.
  std::string WhyWrong(const Deduction& deduction, std::int64_t solution) {
    if (deduction.Steps.empty()) return "no steps";
    for (const Step& step : deduction.Steps) {
      const std::string why = WhyWrong(step);
      if (!why.empty()) return why;
    }
    const Step& last = deduction.Steps.back();
    if (supposed_ || last.Cell != deduction.Cell || !last.Left.IsOne())
      return "no number at the end";
    if (last.Left.Low != deduction.Number || solution != deduction.Number) return "a wrong number";
    return "";
  }

 private:
  using Numbers = std::vector<std::int64_t>;
  struct Cell {
    std::int64_t Filled;  ///< 0 in a gap
    Numbers Marks;
  };

  template <class Range>
  static bool Contains(const Range& range, std::int64_t number) {
    return std::find(range.begin(), range.end(), number) != range.end();
  }
  Cell& At(int cell) { return now_[static_cast<std::size_t>(cell)]; }
  template <class Stays>
  static Numbers Kept(Numbers numbers, Stays stays) {
    std::erase_if(numbers, [&](std::int64_t number) { return !stays(number); });
    return numbers;
  }
  Numbers Listed(const Possible& possible) const {
    Numbers numbers = possible.Listed;
    for (std::int64_t number = possible.Low; !normal_ && number <= possible.High; ++number)
      numbers.push_back(number);
    return numbers;
  }

  std::string WhyWrong(const Step& step) {
    if (contradicted_ != (step.By == StepRule::Refute))
      return "a trial that ends too soon or too late";
    const bool fits = step.Line >= 0 ? FollowsFromLine(step) : FollowsFromMarks(step);
    if (!fits) return "a step that does not follow";
    if (step.Supposed != (supposed_ || step.By == StepRule::Suppose) &&
        step.By != StepRule::Refute) {
      return "a step that does not say whether it is supposed";
    }
    return Take(step) ? "" : "a step that changes nothing";
  }

  /// Makes the step's marks; false if they were so before.
  bool Take(const Step& step) {
    contradicted_ = step.Left.IsNone();
    if (contradicted_) return supposed_;
    Cell& cell = At(step.Cell);
    const bool fills = step.Puts || step.By == StepRule::Suppose || step.By == StepRule::OnePlace ||
                       step.By == StepRule::OneCandidate;
    const bool changes = fills || step.By == StepRule::LastGap || Listed(step.Left) != cell.Marks;
    cell.Marks = Listed(step.Left);
    if (!fills || !step.Left.IsOne()) return changes;
    cell.Filled = step.Left.Low;
    for (Cell& other : now_) {
      if (normal_ && &other != &cell) std::erase(other.Marks, cell.Filled);
    }
    return changes;
  }

  bool FollowsFromMarks(const Step& step) {
    const Numbers left = Listed(step.Left);
    const bool isGap = step.Cell >= 0 && At(step.Cell).Filled == 0;
    const auto others = [&] {
      return Kept(At(step.Cell).Marks, [&](auto number) { return number != step.Number; });
    };
    switch (step.By) {
      case StepRule::OneCandidate:
        return isGap && left == At(step.Cell).Marks && left.size() < 2;
      case StepRule::OnePlace:
        return normal_ && left.size() == (isGap ? 1U : 0U) && Places(step.Number) == Places(step);
      case StepRule::Suppose:
        before_ = now_;
        if (supposed_ || !isGap || others().size() == At(step.Cell).Marks.size()) return false;
        supposed_ = true;
        trial_ = step;
        return left == Numbers{step.Number};
      case StepRule::Refute:
        now_ = before_;
        supposed_ = false;
        return step.Cell == trial_.Cell && step.Number == trial_.Number && left == others();
      default:
        return false;
    }
  }

  /// The cells that can hold a missing number; {-1} if it is not missing.
  std::vector<int> Places(std::int64_t number) {
    std::vector<int> places;
    for (int cell = 0; cell < puzzle_.Cells.Size(); ++cell) {
      if (At(cell).Filled == number) return {-1};
      if (At(cell).Filled == 0 && Contains(At(cell).Marks, number)) places.push_back(cell);
    }
    return places;
  }
  static std::vector<int> Places(const Step& step) {
    return step.Left.IsNone() ? std::vector<int>{} : std::vector{step.Cell};
  }

  bool FollowsFromLine(const Step& step) {
    const std::vector<int>& cells = map_.CellsOf(step.Line);
    const std::int64_t total =
        puzzle_.Target * static_cast<std::int64_t>(cells.size()) / puzzle_.Order();
    std::int64_t filled = 0;
    std::vector<int> others;
    bool isGap = false;
    for (const int cell : cells) {
      filled += At(cell).Filled;
      if (cell == step.Cell) isGap = At(cell).Filled == 0;
      if (cell != step.Cell && At(cell).Filled == 0) others.push_back(cell);
    }
    if (step.Total != total) return false;
    if (step.By == StepRule::FullLine) {
      return step.Sum == filled && filled != total && others.empty() && step.Left.IsNone();
    }
    if (!isGap || step.Sum != total - filled || step.Gaps != static_cast<int>(others.size()) + 1) {
      return false;
    }
    if (!SaysTheTruth(step, others)) return false;
    return Listed(step.Left) ==
           Kept(At(step.Cell).Marks, [&](std::int64_t number) { return Stays(step, number); });
  }

  /// Whether a step is right about the line's other gaps.
  bool SaysTheTruth(const Step& step, const std::vector<int>& others) {
    if (step.By == StepRule::LastGap) return others.empty();
    if (step.By == StepRule::TwoGaps) {
      return others == std::vector{step.OtherGap} &&
             Listed(step.Partner) == At(step.OtherGap).Marks;
    }
    const std::int64_t sign = step.By == StepRule::AtMost ? 1 : -1;
    return others.size() > 1 && sign * step.Others == LeastSum(others, sign);
  }

  /// Whether the step leaves a number.
  bool Stays(const Step& step, std::int64_t number) {
    const std::int64_t rest = step.Sum - number;
    if (step.By == StepRule::LastGap) return rest == 0;
    if (step.By == StepRule::AtLeast) return rest <= step.Others;
    if (step.By == StepRule::AtMost) return rest >= step.Others;
    return Contains(Listed(step.Partner), rest) && (!normal_ || rest != number);
  }

  /// The smallest sum of numbers of which each is at least the lowest mark of one of the cells, all
  /// different under the normal rules; with sign -1, of the negatives of numbers that are at most
  /// the highest marks.
  std::int64_t LeastSum(const std::vector<int>& cells, std::int64_t sign) {
    std::int64_t least = puzzle_.Target * puzzle_.Order();
    AddTo({}, 0, cells, sign, least);
    return least;
  }
  void AddTo(const Numbers& used, std::int64_t sum, const std::vector<int>& cells,
             std::int64_t sign, std::int64_t& least) {
    if (used.size() == cells.size()) least = std::min(least, sum);
    std::int64_t atLeast = sum;
    const auto first = [&](std::size_t i) {
      const Numbers& marks = At(cells[i]).Marks;
      return sign > 0 ? marks.front() : -marks.back();
    };
    for (std::size_t i = used.size(); i < cells.size(); ++i)
      atLeast += first(i);
    if (used.size() == cells.size() || atLeast >= least) return;
    const std::int64_t low = first(used.size());
    const auto choices = normal_ ? static_cast<std::int64_t>(cells.size()) : 1;
    for (std::int64_t number = low; number < low + choices; ++number) {
      if (normal_ && Contains(used, number)) continue;
      Numbers more = used;
      more.push_back(number);
      AddTo(more, sum + number, cells, sign, least);
    }
  }

  const Puzzle puzzle_;
  const bool normal_;
  const LineMap& map_;
  std::vector<Cell> now_;
  std::vector<Cell> before_;  ///< the trial
  Move trial_;
  bool supposed_ = false;
  bool contradicted_ = false;
};

}  // namespace numorra
