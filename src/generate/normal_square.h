#pragma once

#include <cstdint>

#include "app/board/random.h"
#include "app/ports/build_stage.h"
#include "generate/construction.h"

namespace numorra {

/// Magic squares of the numbers 1 to n x n for every order n, by the first construction that makes
/// the order (generate/construction.h). It picks one of several starts at random, or turns the
/// square one quarter turn further at every run.
///
/// Builds leave their square in a table of their own and report the counted attempts and cells to
/// `stage`. Orders above 51 throw SubscriptOutOfRange, orders below 1 InvalidPropertyValue.
class NormalSquare : private BuildChoices {
 public:
  NormalSquare(Random& random, BuildStage& stage) : random_(random), stage_(stage) {}

  /// A square of the given order in the value block.
  CellTable Build(int order) { return ConstructionFor(order).Build(order, *this); }

  /// Counts steps from 0 again, for callers that show no count and build without end.
  void ForgetCount() { IterationCounter = 0; }

 private:
  int PickOf(int kept) override;
  int QuarterTurns() override;
  void StartCount() override;
  void ResumeCount() override { stage_.ShowCount(""); }
  void Count(int steps) override;

  Random& random_;
  BuildStage& stage_;

  /// Steps, counted for the label.
  std::int32_t IterationCounter = 0;

  /// The pick, from 1, of the last build that picked, or the quarter turns of the last one that
  /// turned. They share one field: each reads what the other left.
  std::int16_t LastPickOrTurns = 0;
};

}  // namespace numorra
