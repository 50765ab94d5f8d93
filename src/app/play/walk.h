#pragma once

#include <vector>

#include "app/board/grid.h"
#include "generate/construction_steps.h"

namespace numorra {

/// A walk through the steps of a construction, on a grid of its own that looks like a board: the
/// totals of lines that are full and right light up, the cells of the step are outlined.
class Walk {
 public:
  /// `grid`: shows the walk.
  explicit Walk(Grid& grid) : grid_(grid) {}

  /// Starts a walk, before its first step, at 0.
  void Begin(int order, std::vector<WalkStep> steps);

  int Order() const { return order_; }
  int Steps() const { return static_cast<int>(steps_.size()); }
  int At() const { return at_; }

  /// Shows the board after that many steps, 0 to Steps(); does nothing before a walk has started.
  void GoTo(int step);

  /// The last step, and the next one; null if there is none.
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

/// The walk's progress for the state line: "5 x 5, sum 65: step 3 of 25".
std::string StateOf(const Walk& walk);

}  // namespace numorra
