#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "app/board/place.h"

namespace numorra {

/// One step of a construction: what is written where, what is pointed at, and one sentence on it.
struct WalkStep {
  std::vector<std::pair<Place, std::string>> Written;
  std::vector<Place> Marked;  ///< the cells that the step is about
  std::optional<std::pair<Place, Place>> Arrow = {};
  std::string Sentence;
  int Number = 0;  ///< that one could be asked for: where does it go? 0 for none
};

/// How a normal square is made by the construction of its order, step by step; the last step leaves
/// the square itself. Empty where the square is none that the construction makes. The numbers are
/// in reading order.
///
/// - Odd orders: a number a step. Any square of a diagonal step and a straight break step is known,
///   turned and mirrored ones too.
/// - Orders 4k: a line of numbers in counting order a step, the cells on the diagonals of all
///   4 x 4 blocks, then a pair of opposite ones a step, which change places. Turned by quarters.
/// - Orders 4k + 2: the letters L, U and X, the one exchange of two of them, then a block of four
///   numbers a step, in the order of an odd square.
std::vector<WalkStep> WalkOf(int order, const std::vector<double>& numbers);

/// A square that is good to walk through first: of order 5, 6 or 8.
std::vector<double> ExampleToWalk(int order);

}  // namespace numorra
