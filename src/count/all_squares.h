#pragma once

#include <functional>

#include "app/ports/yielding.h"
#include "count/count_wish.h"

namespace numorra {

/// How all squares of a wish can be found.
enum class Way {
  Fill,       ///< by a search that fills the gaps (fill_search.h)
  Diagonals,  ///< of order 5, by what stands on the diagonals (order5_diagonals.h)
  None        ///< in no time that anyone would wait for
};

/// The better way for a wish with at most FillPlan::kMostGaps gaps, and the cells that a search
/// would fill, estimated by random descents.
struct WayToFind {
  Way Best;
  double Cells;
};
WayToFind BestWay(const CountWish& wish, Yielding& yielding);

/// Calls `visit` with every square of the wish until it returns false. Where BestWay knows none,
/// the search goes through the squares all the same, for those who want some.
void ForEachSquare(const CountWish& wish, Yielding& yielding,
                   const std::function<bool(const Square<int>&)>& visit);

}  // namespace numorra
