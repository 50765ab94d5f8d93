#pragma once

#include <cstdint>

#include "app/board/board.h"
#include "app/board/random.h"
#include "app/ports/build_stage.h"

namespace numorra {

/// Magic squares of the numbers 1 to n x n for every order n, by the construction that its
/// remainder modulo 4 calls for:
///
/// - odd: the stepping construction from every start; one of those that come out magic, at random;
/// - 4k + 2: Conway's LUX, which spreads an odd square of order 2k + 1 over 2 x 2 blocks;
/// - 4m: the numbers in reading order, those on the diagonals of each 4 x 4 block complemented,
///   turned one quarter turn further at every run.
///
/// Builds leave their square in a table of their own; `stage` is told the attempts and cells
/// counted. Orders above 51 throw SubscriptOutOfRange, orders below 1 InvalidPropertyValue.
class NormalSquare {
 public:
  NormalSquare(Random& random, BuildStage& stage) : random_(random), stage_(stage) {}

  /// A square of the given order in the value block.
  CellTable Build(int order);

  /// Counts steps from 0 again, for those who show no count and build without an end.
  void ForgetCount() { IterationCounter = 0; }

 private:
  CellTable SearchOddSquare(int order);
  CellTable BuildLuxSquare(int k);
  CellTable BuildDoublyEvenSquare(int m);
  void Count(std::int32_t steps);

  Random& random_;
  BuildStage& stage_;

  /// Steps counted for the label. The odd search and the LUX construction start it afresh, the
  /// doubly even one goes on from where it stands.
  std::int32_t IterationCounter = 0;

  /// The attempt that the odd search showed last, or the quarter turns that the doubly even
  /// construction made last: one field, each reads what the other left.
  std::int16_t LastPickOrTurns = 0;
};

}  // namespace numorra
