#pragma once

#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "app/board/square.h"

namespace numorra {

/// One step of a construction: what is written where, what is pointed at, and one sentence on it.
struct WalkStep {
  std::vector<std::pair<Place, std::string>> Written;
  std::vector<Place> Marked;  ///< the cells that the step is about
  std::optional<std::pair<Place, Place>> Arrow = {};
  std::string Sentence;
  int Number = 0;  ///< that one could be asked for: where does it go? 0 for none
};

/// How a normal square is made by a construction of its order, step by step; the last step leaves
/// the square itself. Empty where no construction makes the square.
std::vector<WalkStep> WalkOf(const Square<double>& square);

/// A square of the order, 3 to 50, that is good to walk through first, in reading order.
Square<double> ExampleToWalk(int order);

}  // namespace numorra
