#pragma once

#include <cstdint>

#include "app/board/random.h"
#include "app/ports/build_stage.h"
#include "generate/pattern.h"
#include "transform/turning_square.h"

namespace numorra {

/// Turns a flat square, every cell the same, into a varied magic one: small zero-sum patterns are
/// added to it with whole multipliers, chosen so that no cell falls below 1, and between them the
/// square is given quarter turns, which bring the patterns' fixed places to all four sides. Each
/// application leaves every line's total as it was.
///
///     D(k): corners and diagonals       E(c): corners and edges     ring: two rows, two columns
///     -1  .  . +1                       +1 . -2 +1                  -1  . +3 -2
///      . +2 -2  .   (k = 2)              . .  .  .                  -1  .  . +1
///      .  .  .  .                        . .  .  .                   .  .  .  .
///     +1 -2 +2 -1                       -1 . +2 -1                  +2  . -3 +1
class Spreading {
 public:
  /// `passCount` goes on from what it is.
  Spreading(const TurningSquare& square, bool limitToNine, std::int32_t& passCount, Random& random,
            BuildStage& stage)
      : BoardValues(square),
        LimitToNine(limitToNine),
        PassCount(passCount),
        random_(random),
        stage_(stage) {}

  TurningSquare BoardValues;
  Pattern CellFlags;  ///< the current pattern
  bool LimitToNine;   ///< no application may leave a cell above 9

  /// Applications counted so far, those with multiplier 0 too.
  std::int32_t& PassCount;

  void ClearCellFlags() { CellFlags.Clear(); }

  /// Adds `factor` times the pattern, counts, and yields. Under the limit a factor that would leave
  /// a cell above 9 becomes 0. Throws Overflow when the count does not fit.
  void ApplyPattern(int factor);

  /// A random multiplier that leaves every lowered cell at 1 or more. It is 0 when the smallest of
  /// them is 3 or less, or when the limit forbids more.
  int PatternFactor();

  /// D(k) for k = 2, 3, ... while k < n + 1 - k, with both signs, a quarter turn after each.
  void SpreadCornerDiagonals();

  /// E(c) for c = n - 1 down to 2, with both signs, a quarter turn after each.
  void SpreadCornerEdges();

  /// SpreadRing on the concentric squares from the outermost inwards, without the innermost.
  void SpreadRings();

  /// Up to 100 rounds on the ring between two corners: raises its smallest edge cells, then lowers
  /// the largest of the board's top row and right column, then turns. Ends when that would leave a
  /// cell below 1. The maxima are taken from the outermost edges on purpose, for inner rings too.
  void SpreadRing(int top, int left, int bottom, int right);

  /// 1 when adding the pattern once leaves every cell of it at 1 or more, otherwise 0.
  int RingFactor() const;

  Random& Dice() { return random_; }

 private:
  struct Ring;
  bool ApplyRingPattern(const Ring& ring, int row, int column, int sign);
  bool ExceedsNine(int factor) const;

  /// Applies the pattern and then its negative, each with a random multiplier of its own.
  void ApplyBothSigns();

  Random& random_;
  BuildStage& stage_;
};

}  // namespace numorra
