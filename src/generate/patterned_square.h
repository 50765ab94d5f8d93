#pragma once

#include <cstdint>

#include "app/board/random.h"
#include "app/ports/build_stage.h"
#include "generate/pattern.h"
#include "transform/turning_square.h"

namespace numorra {

/// The highest number that a cell may hold under the limit.
inline constexpr double kHighestLimited = 9;

/// A square to which zero-sum patterns are added, one after the other, so that every line's total
/// stays as it was: the workpiece of all passes. It counts the applications, shows the count on the
/// stage and yields there.
class PatternedSquare {
 public:
  /// `limitToNine`: no application may leave a cell above 9. The count goes on from `passCount`.
  PatternedSquare(const TurningSquare& square, bool limitToNine, std::int32_t passCount,
                  Random& random, BuildStage& stage)
      : square_(square),
        limitToNine_(limitToNine),
        passCount_(passCount),
        random_(random),
        stage_(stage) {}

  int Order() const { return square_.Order(); }
  double operator()(int row, int column) const { return square_(row, column); }
  const TurningSquare& Square() const { return square_; }
  TurningSquare& Square() { return square_; }
  bool LimitToNine() const { return limitToNine_; }
  Random& TheRandom() { return random_; }

  /// Applications so far, those with factor 0 too.
  std::int32_t PassCount() const { return passCount_; }

  /// The pattern that was added last.
  const Pattern& LastPattern() const { return last_; }

  /// Adds `factor` times the pattern, counts, and yields. Under the limit a factor that would leave
  /// a cell above 9 becomes 0. Throws Overflow when the count does not fit.
  void Apply(const Pattern& pattern, int factor);

  /// A random factor that leaves every lowered cell at 1 or more. It is 0 when the smallest of them
  /// is 3 or less, or when the limit forbids more.
  int RandomFactor(const Pattern& pattern);

  /// Applies the pattern and then its negative, each with a random factor of its own.
  void ApplyBothSigns(Pattern pattern);

 private:
  bool ExceedsNine(const Pattern& pattern, int factor) const;

  TurningSquare square_;
  bool limitToNine_;
  std::int32_t passCount_;
  Random& random_;
  BuildStage& stage_;
  Pattern last_;
};

}  // namespace numorra
