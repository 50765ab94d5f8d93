#pragma once

#include <cstdint>
#include <optional>

#include "app/board/cell_table.h"
#include "app/board/random.h"
#include "app/ports/build_stage.h"
#include "generate/pattern.h"
#include "generate/variable_plan.h"

namespace numorra {

class PatternedSquare;
class TurningSquare;

/// Tries of a plan before the player is asked about more.
inline constexpr int kTries = 10;

/// The outcome of one build.
enum class SolveStatus {
  Built,
  TryAgain,           ///< the remainder could not be spread; the square is magic without it
  CellValueTooSmall,  ///< the remainder is larger than the cells; there is no square
};

struct VariableBuild {
  SolveStatus Status = SolveStatus::Built;
  CellTable Square;
  double Total = 0;            ///< sum of every line
  bool LeftFlat = false;       ///< a 3 x 3 square whose base is too small to be varied
  Pattern LastPattern;         ///< the last pattern added
  std::int32_t PassCount = 0;  ///< patterns added
};

/// Magic squares of any total: zero-sum patterns (Spreading, exchanges) vary a flat board, then
/// every line is raised by the rest of the wanted total. With a corner value, the rest is left out
/// and the square has that value at the top left. Every cell is a whole number of 1 or more.
class VariableSquare {
 public:
  VariableSquare(Random& random, BuildStage& stage) : random_(random), stage_(stage) {}

  /// `corner`: the value wanted at the top left, if any; the limit then does not apply. A value
  /// that no square has is replaced by the nearest possible one; squares of order 3 ignore it.
  /// `tries`: 1 for the first of several builds of a plan, which is varied more than later ones.
  VariableBuild Build(const VariablePlan& plan, std::optional<double> corner, int tries);

  /// The first successful one of up to kTries builds; otherwise the last.
  VariableBuild BuildInTries(const VariablePlan& plan, std::optional<double> corner);

 private:
  static void SpreadAll(PatternedSquare& square, int tries);
  bool SpreadRemainder(TurningSquare& square, const VariablePlan& plan);
  static void BringCorner(PatternedSquare& square, int base, int corner);

  Random& random_;
  BuildStage& stage_;
};

inline bool IsEvenSize(int order) {
  return order % 2 == 0;
}

}  // namespace numorra
