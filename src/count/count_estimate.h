#pragma once

#include <cstdint>

#include "app/board/random.h"
#include "app/ports/yielding.h"
#include "count/count_wish.h"

namespace numorra {

/// An estimate of a count: the mean of many random descents.
struct CountEstimate {
  double Squares = 0;

  /// The standard error of the mean: about two of three such estimates are at most so far from the
  /// true count, if there are many samples. A few large samples carry most of the mean, so an
  /// estimate from few samples is more often too low than too high, and its error, too.
  double Error = 0;

  double Cells = 0;  ///< filled by a search of all squares
  std::int64_t Samples = 0;
};

/// Samples the search of a wish with at most FillPlan::kMostGaps gaps: for so many seconds, or so
/// many times if `samples` comes first.
CountEstimate EstimateCount(const CountWish& wish, double seconds, std::int64_t samples,
                            Random& random, Yielding& yielding);

}  // namespace numorra
