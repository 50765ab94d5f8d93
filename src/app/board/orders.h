#pragma once

#include <algorithm>
#include <cstdint>

#include "app/board/numbers.h"
#include "words/say.h"

/// The sizes of boards, defined once for all commands.
namespace numorra {

/// The smallest and the largest order of a board that can be built and played.
inline constexpr int kMinOrder = 3;
inline constexpr int kMaxOrder = 50;

inline constexpr const char* kOrderTooSmall = Mark("grid size should be 3x3 or bigger");
inline constexpr const char* kOrderTooLarge = Mark("grid size should be 50x50 or smaller");

/// Why no board has this order, in a sentence to be said to the player; null for valid orders.
inline const char* WhyNoBoardHas(int order) {
  if (order < kMinOrder) return kOrderTooSmall;
  return order > kMaxOrder ? kOrderTooLarge : nullptr;
}

/// The sum of every line of a square of the numbers 1 to order x order.
inline double NormalTotal(double order) {
  return order * (order * order + 1) / 2;
}
inline std::int64_t NormalTotal(int order) {
  return static_cast<std::int64_t>(NormalTotal(static_cast<double>(order)));
}

/// The smallest number in a cell of a base board.
inline constexpr int kLowestBase = 2;

/// A cell's share of `sum` on a board of `order` > 0: the number in every cell of its base board.
inline double BaseOf(double sum, double order) {
  return std::max<double>(kLowestBase, Int(sum / order));
}

}  // namespace numorra
