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

/// How often a plan is tried before the player is asked about more.
inline constexpr int kTries = 10;

/// How one build ended.
enum class SolveStatus {
  Built,
  TryAgain,           ///< the remainder could not be spread; the square is magic without it
  CellValueTooSmall,  ///< the remainder is larger than the cells; there is no square
};

struct VariableBuild {
  SolveStatus Status = SolveStatus::Built;
  CellTable Square;
  double Total = 0;            ///< what every line of the square adds up to
  bool LeftFlat = false;       ///< a 3 x 3 square of a base too small to be varied
  Pattern LastPattern;         ///< the pattern added last
  std::int32_t PassCount = 0;  ///< patterns added
};

/// Magic squares of any total: a flat board is varied by zero-sum patterns (Spreading, exchanges),
/// then what is left of the wanted total is added to every line. With a corner value wanted, the
/// remainder is left out and the square has that value at the top left. Every cell is a whole
/// number of 1 or more.
class VariableSquare {
 public:
  VariableSquare(Random& random, BuildStage& stage) : random_(random), stage_(stage) {}

  /// `corner`: the value wanted at the top left, where there is one; the limit then does not apply.
  /// One that no square has becomes the nearest that one has; squares of order 3 take none.
  /// `tries`: 1 for the first of several builds of a plan, which is varied more than later ones.
  VariableBuild Build(const VariablePlan& plan, std::optional<double> corner, int tries);

  /// The first of up to kTries builds that is one; else the last.
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
