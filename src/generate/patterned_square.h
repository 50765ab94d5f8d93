#pragma once

#include <cstdint>

#include "app/board/random.h"
#include "app/ports/build_stage.h"
#include "generate/pattern.h"
#include "transform/turning_square.h"

namespace numorra {

/// The highest number of a cell under the limit.
inline constexpr double kHighestLimited = 9;

/// The square that all passes work on: zero-sum patterns are added to it one after the other, so
/// that the total of every line stays the same. It counts the applications, shows the count on the
/// stage and yields there.
class PatternedSquare {
 public:
  /// `limitToNine`: no application may raise a cell above 9. The count continues from `passCount`.
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

  /// Applications so far, including those with factor 0.
  std::int32_t PassCount() const { return passCount_; }

  /// The last pattern added.
  const Pattern& LastPattern() const { return last_; }

  /// Adds `factor` times the pattern, counts, and yields. Under the limit, a factor that would
  /// raise a cell above 9 becomes 0. Throws Overflow if the count does not fit.
  void Apply(const Pattern& pattern, int factor);

  /// A random factor that keeps every lowered cell at 1 or more. It is 0 if the smallest of them is
  /// 3 or less, or if the limit allows no more.
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
