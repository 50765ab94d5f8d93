#pragma once

#include <cstdint>
#include <utility>
#include <vector>

#include "count/count_wish.h"
#include "count/kept_images.h"
#include "count/line_equations.h"

namespace numorra {

/// A line's sum limits the choice for a cell: so many of its cells are still open afterwards.
struct OpenLine {
  int Line;
  int OpenAfter;
};

/// A cell to fill: chosen, or following from cells that are full by then.
struct FillStep {
  int Cell = 0;

  /// What it follows from: Divisor x number = Constant + the sum of factor x number in `Terms`.
  bool Follows = false;
  std::int64_t Divisor = 1;
  std::int64_t Constant = 0;
  std::vector<std::pair<int, std::int64_t>> Terms = {};  ///< cell, factor

  std::vector<int> Above = {};        ///< full cells whose numbers must be smaller
  std::vector<int> Below = {};        ///< full cells whose numbers must be larger
  std::vector<OpenLine> Limits = {};  ///< if it is chosen
};

/// The order in which the gaps of a wish are filled. Every cell follows as soon as the equations of
/// the lines determine it, also from several lines together. The next cell to choose is the one
/// from which most others follow; up to order 4 it is the next in reading order, so that squares
/// are found in this order.
struct FillPlan {
  explicit FillPlan(const CountWish& wish);

  /// More gaps cannot be filled: their numbers are a set in 64 bits. This is an empty board of
  /// order 8.
  static constexpr int kMostGaps = 64;

  std::vector<FillStep> Steps;
  std::vector<int> Numbers;               ///< for the gaps, ascending
  std::vector<std::int64_t> Rests;        ///< by line: the sum that is left for the gaps
  std::vector<std::vector<int>> LinesOf;  ///< by cell
  bool Possible = true;                   ///< false if the given numbers contradict the lines
};

}  // namespace numorra
