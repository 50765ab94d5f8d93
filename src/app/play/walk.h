#pragma once

#include <vector>

#include "app/board/grid.h"
#include "generate/construction_steps.h"

namespace numorra {

/// A walk through the steps of a construction, on a grid of its own that looks like a board: the
/// totals of lines that are full and right light up, the cells of the step are outlined.
class Walk {
 public:
  /// `grid`: where it is shown.
  explicit Walk(Grid& grid) : grid_(grid) {}

  /// Begins before the first step, at 0.
  void Begin(int order, std::vector<WalkStep> steps);

  int Order() const { return order_; }
  int Steps() const { return static_cast<int>(steps_.size()); }
  int At() const { return at_; }

  /// Shows the board after so many steps, 0 to Steps(); nothing before a walk has begun.
  void GoTo(int step);

  /// The step that was done last, and the one that comes next; null where there is none.
  const WalkStep* Done() const { return Find(at_ - 1); }
  const WalkStep* Next() const { return Find(at_); }

 private:
  const WalkStep* Find(int step) const;
  void ShowTotals();

  Grid& grid_;
  int order_ = 0;
  std::vector<WalkStep> steps_;
  int at_ = 0;
};

/// Where the walk is, for the line that tells the board's state: "5 x 5, sum 65: step 3 of 25".
std::string StateOf(const Walk& walk);

}  // namespace numorra
