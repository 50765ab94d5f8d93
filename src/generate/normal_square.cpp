#include "generate/normal_square.h"

#include <limits>

#include "app/board/numbers.h"
#include "app/board/runtime_error.h"

namespace numorra {
namespace {

/// Most draws for a pick that differs from the last; more than any working random source needs.
constexpr int kMaxPicks = 1000;

}  // namespace

void NormalSquare::StartCount() {
  ForgetCount();
  ResumeCount();
}

void NormalSquare::Count(int steps) {
  if (IterationCounter > std::numeric_limits<std::int32_t>::max() - steps) {
    throw RuntimeError(Fault::Overflow);
  }
  IterationCounter += steps;
  stage_.ShowCount(IterationCounter);
}

int NormalSquare::PickOf(int kept) {
  std::int16_t pick = 0;
  for (int draw = 0; draw < kMaxPicks; ++draw) {
    stage_.Yield();
    random_.Reseed();
    pick = ToInt16(Int(kept * random_.Next() + 0.5));
    if (pick < 1) pick = 1;
    if (pick != LastPickOrTurns) break;
  }
  LastPickOrTurns = pick;
  return pick - 1;
}

int NormalSquare::QuarterTurns() {
  LastPickOrTurns = static_cast<std::int16_t>(LastPickOrTurns >= 3 ? 0 : LastPickOrTurns + 1);
  return LastPickOrTurns;
}

}  // namespace numorra
