#include "count/count_estimate.h"

#include <cmath>

#include "app/ports/timed_yielding.h"
#include "count/fill_search.h"

namespace numorra {

CountEstimate EstimateCount(const CountWish& wish, double seconds, std::int64_t samples,
                            Random& random, Yielding& yielding) {
  TimedYielding timed(yielding);
  FillSearch search(wish, timed);
  QuickRandom quick(random);
  CountEstimate estimate;
  double deviations = 0;  // the sum of squared distances from the mean (Welford 1962)
  do {
    const FillSearch::Descent descent = search.DescendAtRandom(quick);
    const auto count = static_cast<double>(++estimate.Samples);
    const double distance = descent.Squares - estimate.Squares;
    estimate.Squares += distance / count;
    deviations += distance * (descent.Squares - estimate.Squares);
    estimate.Cells += (descent.Cells - estimate.Cells) / count;
    timed.Yield();
  } while (estimate.Samples < samples && timed.SecondsWorked() < seconds);
  const auto count = static_cast<double>(estimate.Samples);
  if (estimate.Samples > 1) estimate.Error = std::sqrt(deviations / (count * (count - 1)));
  return estimate;
}

}  // namespace numorra
